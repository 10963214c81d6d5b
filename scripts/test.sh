#!/bin/sh
# Builds the release and runs all of its tests. The last lines are ctest's summary, the exit status is
# ctest's. Missing Debian packages are installed first.
set -eu
. "$(dirname -- "$0")/lib.sh"

# shellcheck disable=SC2086  # lists of words
install_packages $build_packages $test_packages clang-format
build_preset release
exec ctest --preset release --no-tests=error
