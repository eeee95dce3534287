# shellcheck shell=bash
# What the benchmarks that drive the real Quillstart.exe under Wine share: a
# private Xvfb display and a fresh prefix with the program and the bench
# tools copied in, the stopwatch tool, the working set and a median.
# Source it from the repository's root after the build; it sets `work`
# (removed at exit), `c` (the prefix's C:) and a trap that stops Wine.

win_build=${QS_WIN_BUILD:-build/win}
# shellcheck source=../scripts/session.sh
source scripts/session.sh

work=$(mktemp -d /tmp/quillstart-bench.XXXXXX)
bench_finish() {
  qs_stop_wine
  qs_stop_display
  rm -rf "$work"
}
trap bench_finish EXIT

qs_start_display "$work"
qs_new_prefix "$work/prefix" "$work/wineboot.log"
c=$WINEPREFIX/drive_c
mkdir -p "$c/Quillstart" "$c/bench"
cp "$win_build/win32/Quillstart.exe" "$c/Quillstart/Quillstart.exe"
cp "$win_build/bench/panetool.exe" "$win_build/tests/tools/probe.exe" "$win_build/tests/tools/endtasks.exe" "$c/bench/"
# shellcheck source=../tests/e2e/data.sh
source tests/e2e/data.sh
E2E_WORK=$work
qs_start_wineserver

tool() {
  wine 'C:\bench\panetool.exe' "$@" 2>"$work/tool.err" | tr -d '\r'
}

# One timed click; prints the milliseconds.
# Usage: timed TITLE TEXT [SHOWN]   or   timed --painted TITLE TEXT
timed() {
  local out command=click
  if [ "$1" = --painted ]; then
    command=paint-click
    shift
  fi
  out=$(tool "$command" "$@") || { echo "bench: the click on \"$2\" did not finish: $(cat "$work/tool.err")" >&2; exit 1; }
  sed -n 's/^ms=//p' <<<"$out"
}

memory_mb() {
  tool memory | sed -n 's/^working_set_kb=//p' | awk '{ printf "%.1f", $1 / 1024 }'
}

box_holds() {
  wine 'C:\bench\probe.exe' 2>/dev/null | tr -d '\r' | grep -qx "text=$1"
}

median() {
  sort -g | awk '{ a[NR] = $1 } END { if (NR % 2) print a[(NR + 1) / 2]; else printf "%.1f\n", (a[NR / 2] + a[NR / 2 + 1]) / 2 }'
}

# Ends any running copy and starts one on freshly seeded lists, then waits
# until the bar has taken its first keystroke (the lists are whole).
# Usage: bench_start LISTS   (a mode of bench/seed_lists.py)
bench_start() {
  wine 'C:\bench\endtasks.exe' image:Quillstart.exe >/dev/null 2>&1 || true
  rm -rf "$c/Morvane" "$c"/Bench-*
  e2e_seed_family C
  python3 bench/seed_lists.py "$c" "$1"
  (cd "$c" && exec wine 'C:\Quillstart\Quillstart.exe' >>"$work/quillstart.log" 2>&1 &)
  qs_poll 60 box_holds Quillstart || { echo "bench: the bar did not come up" >&2; exit 1; }
  xdotool key End
  xdotool type x
  qs_poll 120 box_holds Quillstartx || { echo "bench: the bar took no keystroke" >&2; exit 1; }
  xdotool key BackSpace
}

bench_stop() {
  wine 'C:\bench\endtasks.exe' image:Quillstart.exe >/dev/null 2>&1 || true
}
