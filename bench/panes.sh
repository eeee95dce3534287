# Panes benchmark: what the Launch List pane and the QuickLauncher cost in the
# real Quillstart.exe under Wine, with 32,767 programs beside five lists of
# ten. (With five lists of 32,767 the pane does not open at all: the bar adds
# up the five counts in 16 bits, and the overflow ends its click.) Run on a private Xvfb display with a warm wineserver, in a
# fresh prefix. For each list state, after the bar has taken its first
# keystroke (the lists are whole), bench/panetool.exe clicks as the pointer
# would and waits until the program's window thread has done the click:
#   open      the Launch List pane's first opening (its window and the
#             Program lists made), and a second opening
#   group     one QuickLauncher group click, a whole page written (median)
#   page      one QuickLauncher page change in the Program group, with
#             32,767 programs only (median)
#   clear     clearing the Program group after its question ("Yes")
#   memory    the working set with the bar alone and with the pane open
# Prints every figure and the ratios of 32,767 programs to ten items a
# group. A figure, never a pass/fail test.
# Usage: bash bench/panes.sh   (QS_BENCH_PAGES=7 page changes by default)
set -euo pipefail
cd "$(dirname "$0")/.."

pages=${QS_BENCH_PAGES:-7}
win_build=${QS_WIN_BUILD:-build/win}

bash scripts/install-deps.sh
bash scripts/build.sh win

# shellcheck source=../scripts/session.sh
source scripts/session.sh

work=$(mktemp -d /tmp/quillstart-panes.XXXXXX)
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
cp "$win_build/bench/panetool.exe" "$win_build/tests/tools/probe.exe" "$win_build/tests/tools/endtasks.exe" "$c/bench/"
# shellcheck source=../tests/e2e/data.sh
source tests/e2e/data.sh
E2E_WORK=$work
qs_start_wineserver

tool() {
  wine 'C:\bench\panetool.exe' "$@" 2>"$work/tool.err" | tr -d '\r'
}

# One timed click; prints the milliseconds. Usage: timed TITLE TEXT [SHOWN]
timed() {
  local out
  out=$(tool click "$@") || { echo "panes: the click on \"$2\" did not finish: $(cat "$work/tool.err")" >&2; exit 1; }
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

declare -A figure
for state in ten program; do
  wine 'C:\bench\endtasks.exe' image:Quillstart.exe >/dev/null 2>&1 || true
  rm -rf "$c/Morvane" "$c"/Bench-*
  e2e_seed_family C
  echo "panes: seeding $state lists"
  python3 bench/seed_lists.py "$c" "$state"
  (cd "$c" && exec wine 'C:\Quillstart\Quillstart.exe' >>"$work/quillstart.log" 2>&1 &)
  qs_poll 60 box_holds Quillstart || { echo "panes: the bar did not come up" >&2; exit 1; }
  # The first keystroke is taken once the lists are whole.
  xdotool key End
  xdotool type x
  qs_poll 120 box_holds Quillstartx || { echo "panes: the bar took no keystroke" >&2; exit 1; }
  xdotool key BackSpace
  figure[$state.bar_mb]=$(memory_mb)
  figure[$state.open1]=$(timed Quillstart 'Show|HIde   Launch List' 'Launch List')
  figure[$state.pane_mb]=$(memory_mb)
  timed Quillstart 'Show|HIde   Launch List' >/dev/null
  figure[$state.open2]=$(timed Quillstart 'Show|HIde   Launch List' 'Launch List')
  timed Quillstart 'Show|HIde   Launch List' >/dev/null
  timed Quillstart 'Show|Hide QuickLauncher' QuickLaunch >/dev/null
  # With ten items a group there is no second page: a group click, which
  # writes a whole page from the live lists, is timed there; the page arrows
  # with 32,767 programs, the only group that then has items.
  times=()
  figure[$state.group]=-
  figure[$state.page]=-
  if [ "$state" = ten ]; then
    for _ in $(seq "$pages"); do
      times+=("$(timed QuickLaunch 'Show Buttons Of File List')")
      timed QuickLaunch 'Show Buttons Of Program List' >/dev/null
    done
    figure[$state.group]=$(printf '%s\n' "${times[@]}" | median)
  else
    for _ in $(seq "$pages"); do
      times+=("$(timed QuickLaunch 'Program List Go Frorward')")
      timed QuickLaunch 'Program List Go Back' >/dev/null
    done
    figure[$state.page]=$(printf '%s\n' "${times[@]}" | median)
  fi
  timed QuickLaunch 'Hide QuickLauncher' >/dev/null
  timed Quillstart 'Show|HIde   Launch List' 'Launch List' >/dev/null
  timed 'Launch List' 'Delete All Program From Launch List' >/dev/null
  figure[$state.clear]=$(timed 'Launch List' 'Yes')
  printf 'panes: %s lists: bar %s MB, first open %s ms, pane open %s MB, second open %s ms, group %s ms, page %s ms, clear %s ms\n' \
    "$state" "${figure[$state.bar_mb]}" "${figure[$state.open1]}" "${figure[$state.pane_mb]}" "${figure[$state.open2]}" \
    "${figure[$state.group]}" "${figure[$state.page]}" "${figure[$state.clear]}"
done
wine 'C:\bench\endtasks.exe' image:Quillstart.exe >/dev/null 2>&1 || true

echo
printf '%-34s %12s %12s %8s\n' "" "ten a group" "32,767 prog" "ratio"
for key in open1 open2 clear; do
  case $key in
    open1) label="Launch List pane, first open (ms)" ;;
    open2) label="Launch List pane, again (ms)" ;;
    clear) label="clearing the Program group (ms)" ;;
  esac
  awk -v l="$label" -v a="${figure[ten.$key]}" -v b="${figure[program.$key]}" \
    'BEGIN { printf "%-34s %12s %12s %8.2f\n", l, a, b, (a > 0 ? b / a : 0) }'
done
echo "QuickLauncher group click, ten a group (ms): ${figure[ten.group]}"
echo "QuickLauncher page change, 32,767 programs (ms): ${figure[program.page]}"
awk -v a="${figure[ten.bar_mb]}" -v b="${figure[program.bar_mb]}" 'BEGIN { printf "%-34s %12s %12s\n", "working set, bar alone (MB)", a, b }'
awk -v a="${figure[ten.pane_mb]}" -v b="${figure[program.pane_mb]}" 'BEGIN { printf "%-34s %12s %12s\n", "working set, pane open (MB)", a, b }'
