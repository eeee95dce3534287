#!/usr/bin/env bash
# The test command: installs what is missing, builds both configurations and
# runs every level of tests:
#   (a) the unit tests, native, with ctest
#   (b) the same unit tests as a Windows program under Wine, in a fresh prefix
#   (c) the end-to-end suite: the real Quillstart.exe driven under Wine
#   (d) fuzzing: each libFuzzer target of tests/fuzz built with clang and run
#       for a few seconds, one test per target
# Prints the result of each level and ends with "total: N passed, M failed".
# Exit status 0 only when nothing failed. QS_NATIVE_BUILD, QS_WIN_BUILD and
# QS_FUZZ_BUILD name other build folders than build/native, build/win and
# build/fuzz.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
export QS_NATIVE_BUILD=${QS_NATIVE_BUILD:-build/native}
export QS_WIN_BUILD=${QS_WIN_BUILD:-build/win}
started=$SECONDS

# shellcheck source=session.sh
source scripts/session.sh

work=$(mktemp -d /tmp/quillstart-test.XXXXXX)
finish() {
  qs_stop_wine
  qs_stop_display
  rm -rf "$work"
}
trap finish EXIT

total_passed=0
total_failed=0
summary=()

# Records the outcome of one level. Usage: level_result NAME PASSED FAILED
level_result() {
  summary+=("$(printf '%-40s %4d passed, %d failed' "$1:" "$2" "$3")")
  total_passed=$((total_passed + $2))
  total_failed=$((total_failed + $3))
  echo "== $1: $2 passed, $3 failed"
}

end_with_total() {
  echo
  echo "== summary ($((SECONDS - started)) s)"
  printf '%s\n' "${summary[@]}"
  echo "total: $total_passed passed, $total_failed failed"
  [ "$total_failed" -eq 0 ]
  exit $?
}

echo "== dependencies"
if ! bash scripts/install-deps.sh; then
  level_result "installing packages" 0 1
  end_with_total
fi

echo "== build"
if ! bash scripts/build.sh all; then
  level_result "build" 0 1
  end_with_total
fi

echo "== (a) unit tests, native"
ctest --test-dir "$QS_NATIVE_BUILD" -j2 --timeout 300 --output-on-failure >"$work/ctest.log" 2>&1
if grep -q 'tests passed, 0 tests failed' "$work/ctest.log"; then
  grep -E '^[0-9]+% tests passed' "$work/ctest.log"
else
  cat "$work/ctest.log"
fi
line=$(grep -E '^[0-9]+% tests passed, [0-9]+ tests? failed out of [0-9]+' "$work/ctest.log" | tail -1)
if [ -n "$line" ]; then
  failed=$(sed -E 's/.* ([0-9]+) tests? failed out of.*/\1/' <<<"$line")
  all=$(sed -E 's/.* out of ([0-9]+).*/\1/' <<<"$line")
  level_result "(a) unit tests, native" $((all - failed)) "$failed"
else
  level_result "(a) unit tests, native (no result)" 0 1
fi

echo "== (b) unit tests, Windows build under Wine"
unit_exe=$QS_WIN_BUILD/tests/quill_unit_tests.exe
if qs_start_display "$work" && qs_new_prefix "$work/prefix" "$work/wineboot.log"; then
  qs_start_wineserver
  timeout 300 wine "$unit_exe" >"$work/unit-wine.log" 2>&1
  tr -d '\r' <"$work/unit-wine.log" >"$work/unit-wine.txt"
  grep -E '^\[ *(FAILED|PASSED|==========) *\]' "$work/unit-wine.txt"
  ran=$(sed -nE 's/^\[==========\] ([0-9]+) tests? from .* ran\..*/\1/p' "$work/unit-wine.txt" | tail -1)
  passed=$(sed -nE 's/^\[  PASSED  \] ([0-9]+) tests?\..*/\1/p' "$work/unit-wine.txt" | tail -1)
  if [ -n "$ran" ]; then
    passed=${passed:-0}
    level_result "(b) unit tests, Windows under Wine" "$passed" $((ran - passed))
  else
    tail -20 "$work/unit-wine.txt"
    level_result "(b) unit tests, Windows (no result)" 0 1
  fi
  qs_stop_wine
  qs_stop_display
  rm -rf "$WINEPREFIX"
else
  level_result "(b) unit tests, Windows (no Wine session)" 0 1
fi

echo "== (c) end-to-end under Wine"
E2E_RESULT="$work/e2e.result" bash tests/e2e/run_e2e.sh
if [ -s "$work/e2e.result" ]; then
  read -r passed failed <"$work/e2e.result"
  level_result "(c) end-to-end" "$passed" "$failed"
else
  level_result "(c) end-to-end (no result)" 0 1
fi

echo "== (d) fuzzing"
fuzz_seconds=5
FUZZ_RESULT="$work/fuzz.result" bash tests/fuzz/run_fuzz.sh "$fuzz_seconds"
if [ -s "$work/fuzz.result" ]; then
  read -r passed failed <"$work/fuzz.result"
  level_result "(d) fuzzing, ${fuzz_seconds} s per target" "$passed" "$failed"
else
  level_result "(d) fuzzing (no result)" 0 1
fi

end_with_total
