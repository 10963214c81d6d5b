# What the other scripts share; read by `.`, never run. Wherever a script is called from, it goes on in
# the project's root.
# shellcheck shell=sh

CDPATH='' cd -- "$(dirname -- "$0")/.." || exit

# What every build needs, and what its tests need beside it, on 64 bits and in a 32-bit root alike.
# shellcheck disable=SC2034  # used by those who read this
build_packages="g++ cmake ninja-build pkg-config libxml2-dev libcli11-dev nlohmann-json3-dev"
test_packages="python3 binutils libgtest-dev libgmock-dev libxml2-utils xsltproc locales"

# Runs a command as root. sudo drops the environment, so the machine's proxies are handed over by name.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo env ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
      ${no_proxy:+no_proxy="$no_proxy"} "$@"
  fi
}

# missing_packages <package>...: prints those that are not installed, one on a line.
missing_packages() {
  for package; do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      echo "$package"
  done
}

# install_packages <package>...: installs what is missing; touches nothing, and needs neither network nor
# root, when nothing is.
install_packages() {
  missing=$(missing_packages "$@" | tr '\n' ' ')
  [ -n "$missing" ] || return 0
  echo "Installing $missing"
  apt_get update
  # shellcheck disable=SC2086  # one word for each package
  apt_get install -y --no-install-recommends $missing >/dev/null
}

# Waits for another apt to finish; asks nothing; says only what goes wrong.
apt_get() {
  as_root env DEBIAN_FRONTEND=noninteractive DEBCONF_NOWARNINGS=yes \
    apt-get -qq -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0 "$@"
}

# prepare_tests [<package>...]: installs all that build and tests need, with further packages, and makes
# the locale with a decimal comma that no number may depend on.
prepare_tests() {
  # shellcheck disable=SC2086  # lists of words
  install_packages $build_packages $test_packages "$@"
  locale -a | grep -qix 'de_DE.utf-\?8' || as_root localedef -i de_DE -f UTF-8 de_DE.UTF-8
}

# build_preset <preset> [<target>...]: configures and builds, on all processors, the targets, or else what the
# preset's tests need.
build_preset() {
  preset=$1
  shift
  cmake --preset "$preset" &&
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}
