#!/bin/sh
# Builds the benchmark and runs it: this library beside what a developer would take instead, on the same
# generated files. The tables go to standard output, all else to standard error. --quick measures documents of
# 1 MB only, --markdown prints tables for a page; docs/benchmarks.md tells how to read them. Missing Debian
# packages are installed first.
set -eu
. "$(dirname -- "$0")/lib.sh"

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages python3 libpugixml-dev libexpat1-dev xsdcxx libxerces-c-dev gsoap libgsoap-dev \
  valgrind >&2
build_preset bench >&2
exec python3 -B bench/run.py "$@" build/bench/bench
