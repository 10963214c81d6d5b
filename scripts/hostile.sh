#!/bin/sh
# Runs the release's tests of hostile documents and prints what each document took, in seconds. The table goes to
# standard output, all else to standard error; --markdown prints it for a page, and docs/benchmarks.md tells how to
# read it. The exit status tells whether the tests passed and all was measured, never how long it took. Missing
# Debian packages are installed first.
set -eu
. "$(dirname -- "$0")/lib.sh"

# shellcheck disable=SC2086  # lists of words
install_packages $build_packages $test_packages >&2
build_preset release hostile_test >&2
exec python3 -B bench/hostile_times.py "$@" build/release/tests/isoxmllib/hostile_test
