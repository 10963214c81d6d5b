#!/bin/sh
# Builds the release and runs all of its tests. The last lines are ctest's summary, the exit status is
# ctest's. Missing Debian packages are installed first.
set -eu
. "$(dirname -- "$0")/lib.sh"

prepare_tests clang-format chromium chromium-driver
build_preset release
exec ctest --preset release --no-tests=error
