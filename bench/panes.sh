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

bash scripts/install-deps.sh
bash scripts/build.sh win

# shellcheck source=wine_bench.sh
source bench/wine_bench.sh

declare -A figure
for state in ten program; do
  echo "panes: seeding $state lists"
  bench_start "$state"
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
bench_stop

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
