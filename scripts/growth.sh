#!/bin/sh
# How the cost of reading grows with the number of things in a document: attributes, namespaces, entities,
# siblings, skipped content; and in a transfer set, with the views of its fields and maps. Counts the
# instructions, which no load on the machine changes, at a number of things and at ten times as many, less what
# the document without any takes. What is linear grows ten times; the last column warns of more than twelve. A
# report for people, not a test.
#
#   growth.sh [COUNT...]    from each COUNT to its tenfold; 1000 and 10000 when not told
set -eu
. "$(dirname -- "$0")/lib.sh"

[ $# -gt 0 ] || set -- 1000 10000

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages libpugixml-dev libexpat1-dev valgrind >&2
build_preset bench isoxml_growth >&2
program=build/bench/bench/isoxml_growth

# instructions <thing> <count>
instructions() {
  valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect='measured_*' \
    "$program" "$1" "$2" 2>&1 >/dev/null | sed -n 's/^==.*Collected *: *//p'
}

printf '%-24s %8s %16s %16s %7s\n' things count instructions 'of ten times' growth
"$program" --list | while read -r thing; do
  none=$(instructions "$thing" 0)
  for count; do
    few=$(($(instructions "$thing" "$count") - none))
    many=$(($(instructions "$thing" "$((count * 10))") - none))
    awk -v thing="$thing" -v count="$count" -v few="$few" -v many="$many" 'BEGIN {
      printf "%-24s %8d %16d %16d %7.2f%s\n", thing, count, few, many, many / few, (many > 12 * few ? "  more than linear" : "")
    }'
  done
done
