#!/bin/sh
# Builds the release without tests and shows the command-line host on two transfer sets: one that is
# whole, and one with a broken external file, on which the host reports the failed document and exits 1.
# Exits 0 if both did as expected.
set -eu
. "$(dirname -- "$0")/lib.sh"

# show <expected status> <isoxml argument>...
show() {
  expected=$1
  shift
  printf '\n$ isoxml %s\n' "$*"
  status=0
  build/demo/tools/isoxml "$@" || status=$?
  echo "(exit status $status)"
  [ "$status" -eq "$expected" ] || as_expected=no
}

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages
cmake --preset release -B build/demo -D ISOXML_BUILD_TESTS=OFF
cmake --build build/demo --parallel "$(nproc)"

as_expected=yes
show 0 info examples/sets/complete
show 1 info examples/sets/broken-external
[ "$as_expected" = yes ] || { echo "demo.sh: expected the exit statuses 0 and 1" >&2; exit 1; }
