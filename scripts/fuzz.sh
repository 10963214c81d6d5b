#!/bin/sh
# Fuzzes the library: builds the targets, runs every kept input through them, then fuzzes each for a while,
# two at a time. Fails on a finding, which it leaves in build/fuzz/findings.
#
#   fuzz.sh [SECONDS [TARGET...]]    30 seconds and all targets when not told; 0 only replays
set -eu
. "$(dirname -- "$0")/lib.sh"

seconds=${1:-30}
[ $# -eq 0 ] || shift
build=build/fuzz
findings=$build/findings

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages python3 clang libclang-rt-14-dev llvm
build_preset fuzz
mkdir -p "$findings"

# Sanitizers need their shadow's addresses free; see .ci/run.
fixed_addresses="setarch $(uname -m) -R"
$fixed_addresses true 2>/dev/null || fixed_addresses=

# run <target> <libFuzzer's arguments>...: with all that a run has in common. The time-out is for a hang: one input
# may cause the free expansion of entities in each of a dozen readings, which takes a sanitized build a while.
run() {
  target=$1
  shift
  ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    $fixed_addresses "$build/fuzz/fuzz_$target" -timeout=300 -rss_limit_mb=3000 \
    -artifact_prefix="$findings/$target-" "$@"
}

# kept <inputs>: prints the directories with inputs of that kind.
kept() {
  for directory in "fuzz/corpus/$1" "fuzz/regressions/$1" "$build/fuzz/made/$1"; do
    [ ! -d "$directory" ] || printf '%s ' "$directory"
  done
}

# fuzz_one <target> <inputs>: what is found worth keeping stays in build/fuzz/grown for the next time.
fuzz_one() {
  log=$findings/$1.log
  grown=$build/grown/$1
  mkdir -p "$grown"
  rm -f "$log"
  status=0
  # shellcheck disable=SC2046  # a list of directories
  run "$1" -runs=0 $(kept "$2") >"$log" 2>&1 || status=$?
  if [ "$status" -eq 0 ] && [ "$seconds" -ne 0 ]; then
    # shellcheck disable=SC2046
    run "$1" -max_total_time="$seconds" -max_len=4096 -dict="$build/fuzz/dictionary" -print_final_stats=1 \
      "$grown" $(kept "$2") >>"$log" 2>&1 || status=$?
  fi
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  edges=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)
  printf '%-13s %9s executions, %6s edges, %s\n' "$1" "${executions:-replay}" "${edges:-no}" \
    "$([ "$status" -eq 0 ] && echo 'nothing found' || echo "FAILED: see $log")"
  [ "$status" -eq 0 ] || touch "$findings/failed"
}

rm -f "$findings/failed"
running=0
while read -r target inputs; do
  if [ $# -gt 0 ]; then
    case " $* " in *" $target "*) ;; *) continue ;; esac
  fi
  fuzz_one "$target" "$inputs" &
  running=$((running + 1))
  [ "$running" -lt 2 ] || { wait; running=0; }
done <"$build/fuzz/targets"
wait
[ ! -e "$findings/failed" ] || { tail -n 40 "$findings"/*.log; exit 1; }
