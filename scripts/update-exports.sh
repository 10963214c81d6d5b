#!/bin/sh
# Rewrites cmake/exports.txt, the reviewed list of what the 64-bit release exports. Run it after a change
# to the interface, and read the difference: a line that went away breaks hosts.
set -eu
. "$(dirname -- "$0")/lib.sh"

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages python3 binutils
cmake --preset release -D ISOXML_BUILD_TESTS=OFF -B build/exports
cmake --build build/exports --target isoxml --parallel "$(nproc)"
python3 tests/packaging/check_exports.py --library build/exports/libisoxml.so \
  --mutable cmake/mutable_globals.list --write cmake/exports.txt
