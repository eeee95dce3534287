#!/usr/bin/env bash
# Builds the fuzz targets (scripts/build.sh fuzz, clang, in build/fuzz) and
# runs each for SECONDS (default 10) from its kept corpus in
# build/fuzz/corpus/. Every run has a memory limit (-rss_limit_mb), a limit
# per input (-timeout) and a hard limit on the whole run (timeout), so a
# crash, a broken check, a leak, a memory blow-up or a hang all count as a
# failure of that target. Prints each target's result and how many inputs it
# executed; a failing target's report and crashing input stay in build/fuzz/.
# Usage: tests/fuzz/run_fuzz.sh [SECONDS]
# When FUZZ_RESULT names a file, "PASSED FAILED" (one count per target) is
# written to it. Exit status 0 only when every target built and ran clean.
# QS_FUZZ_BUILD names another build folder than build/fuzz.
set -uo pipefail
seconds=${1:-10}
cd "$(dirname "$0")/../.." || exit 1
build=${QS_FUZZ_BUILD:-build/fuzz}
export QS_FUZZ_BUILD=$build
targets=(fuzz_record_reader fuzz_list_reader fuzz_family_readers fuzz_command)
rss_limit_mb=1024
# Room for loading the corpus and writing the final statistics on top of the
# fuzzing time itself.
hard_limit=$((seconds + 120))

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

for target in "${targets[@]}"; do
  corpus="$build/corpus/$target"
  artifacts="$build/artifacts"
  log="$build/$target.log"
  mkdir -p "$corpus" "$artifacts"
  timeout --kill-after=10 "$hard_limit" "$build/tests/fuzz/$target" "$corpus" \
    -max_total_time="$seconds" -max_len=4096 -rss_limit_mb="$rss_limit_mb" -timeout=10 \
    -print_final_stats=1 -artifact_prefix="$artifacts/$target-" >"$log" 2>&1
  rc=$?
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
  else
    result=ok
  fi
  echo "$target: $result, ${units:-?} inputs executed in ${seconds} s"
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
finish
