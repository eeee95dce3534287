#!/usr/bin/env bash
# Builds the fuzz targets (scripts/build.sh fuzz, clang, in build/fuzz) and
# runs each from the corpus kept in the tree (tests/fuzz/corpus/<target>/),
# which libFuzzer reads but never writes: what a run finds goes to
# build/fuzz/corpus/<target>/. Every run has a memory limit (-rss_limit_mb), a
# limit per input (-timeout) and a hard limit on the whole run (timeout), so a
# crash, a broken check, a leak, a memory blow-up or a hang all count as a
# failure of that target. A failing target's report and crashing input stay
# in build/fuzz/.
#
# Usage: tests/fuzz/run_fuzz.sh [SECONDS]
#   fuzzes each target for SECONDS (default 10) and prints its result, how
#   many inputs it executed and how many inputs a second that makes.
# Usage: tests/fuzz/run_fuzz.sh --runs N
#   fuzzes each target until it has executed N inputs, then merges what it
#   found into the kept corpus (-merge=1 into an empty folder: the smallest
#   set of inputs that covers all the features of both, with no duplicates),
#   and prints the time taken and the kept corpus's size.
# When FUZZ_RESULT names a file, "PASSED FAILED" (one count per target) is
# written to it. Exit status 0 only when every target built and ran clean.
# QS_FUZZ_BUILD names another build folder than build/fuzz.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
build=${QS_FUZZ_BUILD:-build/fuzz}
export QS_FUZZ_BUILD=$build
targets=(fuzz_record_reader fuzz_list_reader fuzz_family_readers fuzz_command)
kept=tests/fuzz/corpus
rss_limit_mb=1024
max_len=4096

runs=
seconds=10
if [ "${1:-}" = --runs ]; then
  runs=${2:-}
  [[ "$runs" =~ ^[0-9]+$ ]] || { echo "usage: $0 [SECONDS] | --runs N" >&2; exit 2; }
  # No limit on the time but this generous one: a target slower than 500
  # inputs a second, plus the corpus's loading and merging, is taken to hang.
  hard_limit=$((runs / 500 + 900))
else
  seconds=${1:-10}
  # Room for loading the corpus and writing the final statistics on top of
  # the fuzzing time itself.
  hard_limit=$((seconds + 120))
fi

passed=0
failed=0
finish() {
  [ -n "${FUZZ_RESULT:-}" ] && echo "$passed $failed" >"$FUZZ_RESULT"
  [ "$failed" -eq 0 ]
  exit $?
}

mkdir -p "$build"
if ! bash scripts/build.sh fuzz >"$build/build.log" 2>&1; then
  tail -40 "$build/build.log"
  echo "fuzz targets did not build (log: $build/build.log)"
  failed=${#targets[@]}
  finish
fi

# A corpus's size: its inputs' bytes and their number. Usage: corpus_size DIR
corpus_size() {
  find "$1" -type f -printf '%s\n' | awk '{ b += $1 } END { printf "%d bytes in %d inputs", b, NR }'
}

# Merges what a run found into the kept corpus of its target, keeping only the
# inputs that add features. Usage: merge TARGET FOUND LOG
merge() {
  local fresh="$build/corpus-merged/$1"
  rm -rf "$fresh"
  mkdir -p "$fresh"
  timeout --kill-after=10 "$hard_limit" "$build/tests/fuzz/$1" -merge=1 "$fresh" "$kept/$1" "$2" \
    -max_len="$max_len" -rss_limit_mb="$rss_limit_mb" -timeout=10 >"$3" 2>&1 || return 1
  rm -rf "${kept:?}/$1"
  mv "$fresh" "$kept/$1"
}

for target in "${targets[@]}"; do
  found="$build/corpus/$target"
  artifacts="$build/artifacts"
  log="$build/$target.log"
  mkdir -p "$found" "$artifacts" "$kept/$target"
  if [ -n "$runs" ]; then
    limit=(-runs="$runs")
  else
    limit=(-max_total_time="$seconds")
  fi
  started=$(date +%s%N)
  timeout --kill-after=10 "$hard_limit" "$build/tests/fuzz/$target" "$found" "$kept/$target" \
    "${limit[@]}" -max_len="$max_len" -rss_limit_mb="$rss_limit_mb" -timeout=10 \
    -print_final_stats=1 -artifact_prefix="$artifacts/$target-" >"$log" 2>&1
  rc=$?
  took_ms=$((($(date +%s%N) - started) / 1000000))
  # libFuzzer ends a clean run with "#N DONE ..." and, asked for its final
  # statistics, "stat::number_of_executed_units: N".
  done_line=$(grep -E '^#[0-9]+[[:space:]]+DONE' "$log" | tail -1)
  units=$(sed -nE 's/^stat::number_of_executed_units: *([0-9]+).*/\1/p' "$log" | tail -1)
  if [ "$rc" -eq 124 ] || [ "$rc" -eq 137 ]; then
    result="FAILED (still running after ${hard_limit} s)"
  elif [ "$rc" -ne 0 ]; then
    result="FAILED (exit status $rc)"
  elif [ -z "$units" ] || [ "$units" -eq 0 ]; then
    result="FAILED (no inputs executed)"
  elif [ -n "$runs" ] && [ "$units" -lt "$runs" ]; then
    result="FAILED (stopped after $units of $runs inputs)"
  elif [ -n "$runs" ] && ! merge "$target" "$found" "$build/$target.merge.log"; then
    result="FAILED (merge into $kept/$target, log: $build/$target.merge.log)"
  else
    result=ok
  fi
  rate=$(awk -v u="${units:-0}" -v t="$took_ms" 'BEGIN { printf "%.0f", (t > 0 ? 1000 * u / t : 0) }')
  if [ -n "$runs" ]; then
    echo "$target: $result, ${units:-?} inputs executed in $((took_ms / 1000)) s ($rate inputs/s)"
    [ "$result" = ok ] && echo "  kept corpus: $(corpus_size "$kept/$target")"
  else
    echo "$target: $result, ${units:-?} inputs executed in ${seconds} s ($rate inputs/s)"
  fi
  [ -n "$done_line" ] && echo "  $done_line"
  [ -n "$units" ] && echo "  stat::number_of_executed_units: $units"
  if [ "$result" = ok ]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    grep -E '^INFO: Seed:' "$log"
    tail -40 "$log"
    echo "  full log: $log; crashing or hanging inputs, if any: $artifacts/$target-*"
  fi
done
[ -n "$runs" ] && echo "kept corpus in all: $(corpus_size "$kept")"
finish
