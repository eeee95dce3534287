#!/usr/bin/env bash
# Start-up benchmark: how long Quillstart.exe takes from process start to a
# visible bar, against the smallest window program built by the same
# toolchain (bench/empty_window.cpp). Both run under Wine on a private Xvfb
# display with a warm, persistent wineserver, in a fresh prefix, after one
# untimed warm-up start each.
#
# The stopwatch is Windows-side (bench/startwait.cpp): it takes the time just
# before CreateProcess and polls every millisecond for a visible top-level
# window of the new process with the expected title ("Quillstart", "Empty
# Window"), then ends the process. Prints every run, both medians and their
# ratio. A figure, never a pass/fail test.
# Usage: bash bench/startup.sh   (QS_BENCH_RUNS=9 runs each by default)
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${QS_BENCH_RUNS:-9}
win_build=${QS_WIN_BUILD:-build/win}
[ "$runs" -ge 7 ] || { echo "startup: at least 7 runs make a median here" >&2; exit 2; }

bash scripts/install-deps.sh
bash scripts/build.sh win

# shellcheck source=../scripts/session.sh
source scripts/session.sh

work=$(mktemp -d /tmp/quillstart-bench.XXXXXX)
finish() {
  qs_stop_wine
  qs_stop_display
  rm -rf "$work"
}
trap finish EXIT

qs_start_display "$work"
qs_new_prefix "$work/prefix" "$work/wineboot.log"
c=$WINEPREFIX/drive_c
mkdir -p "$c/Quillstart" "$c/bench"
cp "$win_build/win32/Quillstart.exe" "$c/Quillstart/Quillstart.exe"
cp "$win_build/bench/empty_window.exe" "$win_build/bench/startwait.exe" "$c/bench/"
# Quillstart is already known on this computer, so every run is an ordinary
# start to the bar and not the first start's name prompt.
# shellcheck source=../tests/e2e/data.sh
source tests/e2e/data.sh
E2E_WORK=$work
qs_start_wineserver
e2e_seed_family C

# Runs the stopwatch. Usage: measure RUNS PROGRAM TITLE OUTPUT
measure() {
  wine 'C:\bench\startwait.exe' "$1" "$2" "$3" >"$work/raw.out" 2>"$work/raw.err" || {
    tr -d '\r' <"$work/raw.out"
    echo "startup: $2 did not show its window" >&2
    exit 1
  }
  tr -d '\r' <"$work/raw.out" >"$4"
}

echo "startup: display $DISPLAY, warm-up"
measure 1 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm-quillstart.txt"
measure 1 'C:\bench\empty_window.exe' 'Empty Window' "$work/warm-empty.txt"

echo "startup: Quillstart.exe, $runs runs"
measure "$runs" 'C:\Quillstart\Quillstart.exe' Quillstart "$work/quillstart.txt"
sed 's/^/  /' "$work/quillstart.txt"
echo "startup: empty_window.exe, $runs runs"
measure "$runs" 'C:\bench\empty_window.exe' 'Empty Window' "$work/empty.txt"
sed 's/^/  /' "$work/empty.txt"

median() {
  sed -n 's/^median: \([0-9.]*\) ms$/\1/p' "$1"
}
q=$(median "$work/quillstart.txt")
e=$(median "$work/empty.txt")
echo
echo "Quillstart.exe to visible bar:     median $q ms"
echo "empty_window.exe to visible window: median $e ms"
awk -v q="$q" -v e="$e" 'BEGIN { printf "ratio Quillstart / empty window:     %.2f\n", q / e }'
