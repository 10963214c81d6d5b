#!/bin/sh
# Builds the preset i386 and runs its tests on a 64-bit machine: a native 32-bit Debian is made once in
# build/i386-root, the project is copied into it, and that system's own compiler builds it, so no
# toolchain file and no foreign packages are needed. Later runs use the root again and compile what has
# changed. The exit status is ctest's; remove build/i386-root to start afresh.
#
# The script calls itself twice: as root in mount and process namespaces of its own, where whatever is
# mounted or left running vanishes with it, and from there inside the 32-bit root.
set -eu
. "$(dirname -- "$0")/lib.sh"

release=bookworm
root=$PWD/build/i386-root
project_in_root=/src/isoxml

# Prints the mirror that this machine itself installs from. apt parses its own lists, of either format.
host_mirror() {
  apt-get indextargets --format "\$(REPO_URI) \$(RELEASE) \$(COMPONENT)" "Created-By: Packages" |
    awk -v release="$release" -v codename="$(. /etc/os-release && echo "${VERSION_CODENAME-}")" '
      $3 == "main" && ($2 == release || $2 == codename) && $1 ~ /^(https?|file):/ { print $1; exit }'
}

# The proxies, certificates and clock checks this machine's apt is set up with hold for the root too.
copy_network_setup() {
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  apt-config dump | grep -E '^Acquire::(https?::|Check-|Retries|Force)' | grep -v Auto-Detect \
    > "$root/etc/apt/apt.conf.d/90host" || true  # no such line: an empty file
  if [ -f /etc/ssl/certs/ca-certificates.crt ]; then
    mkdir -p "$root/etc/ssl/certs"
    cp -L /etc/ssl/certs/ca-certificates.crt "$root/etc/ssl/certs/"
  fi
}

make_root() {
  [ ! -e "$root/.complete" ] || return 0
  mirror=$(host_mirror)
  if [ -z "$mirror" ]; then  # apt tells of a source only once it has its index
    apt_get update
    mirror=$(host_mirror)
  fi
  [ -n "$mirror" ] || { echo "i386.sh: no mirror of $release among this machine's apt sources" >&2; exit 1; }
  eval "$(apt-config shell apt_proxy Acquire::http::Proxy)"
  [ "${apt_proxy-DIRECT}" = DIRECT ] || export http_proxy="${http_proxy:-$apt_proxy}"

  echo "Making the 32-bit root in build/i386-root"
  rm -rf "$root"  # what an interrupted run left
  debootstrap --arch=i386 --variant=minbase "$release" "$root" "$mirror" > build/i386-root.log 2>&1 ||
    { cat build/i386-root.log >&2; exit 1; }
  touch "$root/.complete"
}

# Times of modification are kept, and so is the build directory: ninja then sees what has changed.
copy_project() {
  mkdir -p "$root$project_in_root"
  find "$root$project_in_root" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
  tar -c --exclude=./build --exclude=./.git . | tar -x --no-same-owner -C "$root$project_in_root"
}

case ${1-} in
  "")
    install_packages debootstrap debian-archive-keyring
    mkdir -p build
    status=0
    as_root flock build/i386-root.lock unshare --mount --pid --fork --kill-child --mount-proc \
      sh scripts/i386.sh in-namespace || status=$?
    exit "$status"
    ;;
  in-namespace)
    make_root
    copy_network_setup
    copy_project
    mount --rbind /dev "$root/dev"
    mount -t proc proc "$root/proc"
    exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
      ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
      ${no_proxy:+no_proxy="$no_proxy"} sh "$project_in_root/scripts/i386.sh" in-root
    ;;
  in-root)
    # shellcheck disable=SC2119  # none beyond the common ones
    prepare_tests
    build_preset i386
    exec ctest --preset i386 --no-tests=error
    ;;
  *)
    echo "usage: scripts/i386.sh" >&2
    exit 2
    ;;
esac
