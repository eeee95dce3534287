# Start-up benchmark: how long Quillstart.exe takes from process start to a
# visible bar, and how much memory it holds then, against the smallest window
# programs built by the same toolchain (bench/empty_window.cpp): a decorated
# overlapped window, which the window manager frames before it shows, and a
# borderless topmost popup of the bar's size made as the bar is, the fair
# yardstick. All run under Wine on a private Xvfb display with a warm,
# persistent wineserver, in a fresh prefix, after one untimed warm-up start
# each. Every start is an
# ordinary one (Quillstart is already known on this computer), with the
# Launch List in one of these states:
#   empty   no list files
#   full    all five groups at 32,767 items, the File, Folder and Program
#           targets present, each group's targets in one folder
#   spread  the same, with the targets spread over 1,024 folders of 32
#
# The stopwatch is Windows-side (bench/startwait.cpp): it takes the time just
# before CreateProcess and polls every millisecond for a visible top-level
# window of the new process with the expected title ("Quillstart", "Empty
# Window"). For Quillstart it then types one character into the bar's text
# box and waits until the box shows it: "ready" is the time until the bar
# takes its first keystroke, which waits for the lists to be whole. The
# working set (GetProcessMemoryInfo) is read at the end of the measure, then
# the process is ended, so nothing is ever saved. For each list state the
# empty window, the empty popup and Quillstart start in turn, run by run;
# prints every run, the medians, their ratios to each yardstick's median of
# the same runs and the working sets. A figure, never a pass/fail test.
# Usage: bash bench/startup.sh   (QS_BENCH_RUNS=9 runs each by default;
#        QS_BENCH_LISTS="empty full spread" picks the list states, in order)
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${QS_BENCH_RUNS:-9}
list_states=${QS_BENCH_LISTS:-empty full spread}
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
cp "$win_build/bench/empty_window.exe" "$win_build/bench/empty_popup.exe" "$win_build/bench/startwait.exe" "$c/bench/"
# Quillstart is already known on this computer, so every run is an ordinary
# start to the bar and not the first start's name prompt.
# shellcheck source=../tests/e2e/data.sh
source tests/e2e/data.sh
E2E_WORK=$work
qs_start_wineserver
e2e_seed_family C

# Runs the stopwatch once and appends "visible ready working-set" to OUTPUT
# (ready is "-" for the empty window). Usage: measure PROGRAM TITLE OUTPUT [ready]
measure() {
  wine 'C:\bench\startwait.exe' 1 "$1" "$2" ${4:-} >"$work/raw.out" 2>"$work/raw.err" || {
    tr -d '\r' <"$work/raw.out"
    echo "startup: $1 did not show its window" >&2
    exit 1
  }
  tr -d '\r' <"$work/raw.out" | awk '
    /^median:/ { v = $2 } /^ready:/ { r = $2 } /^working set:/ { w = $3 }
    END { print v, (r == "" ? "-" : r), w }' >>"$3"
}

# The median of one column of a measure file. Usage: median FILE COLUMN
median() {
  awk -v c="$2" '{ print $c }' "$1" | sort -g | awk '{ a[NR] = $1 } END {
    if (NR % 2) print a[(NR + 1) / 2]; else printf "%.1f\n", (a[NR / 2] + a[NR / 2 + 1]) / 2 }'
}

echo "startup: display $DISPLAY, warm-up"
measure 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt"
measure 'C:\bench\empty_window.exe' 'Empty Window' "$work/warm.txt"
measure 'C:\bench\empty_popup.exe' 'Empty Popup' "$work/warm.txt"

# Each list state is measured with runs of the yardsticks and of Quillstart
# taken in turn, so that a machine growing slower or faster
# during the benchmark weighs on both alike.
results=()
for state in $list_states; do
  case "$state" in
    empty) ;;
    full | spread)
      echo "startup: seeding $state lists (5 x 32,767 items)"
      python3 bench/seed_lists.py "$c" "$state"
      ;;
    *) echo "startup: unknown list state $state" >&2; exit 2 ;;
  esac
  measure 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt" ready
  e_file=$work/empty-$state.txt
  p_file=$work/popup-$state.txt
  q_file=$work/quillstart-$state.txt
  echo "startup: $state lists, $runs runs of each in turn (visible ms, ready ms, working set MB)"
  for i in $(seq "$runs"); do
    measure 'C:\bench\empty_window.exe' 'Empty Window' "$e_file"
    measure 'C:\bench\empty_popup.exe' 'Empty Popup' "$p_file"
    measure 'C:\Quillstart\Quillstart.exe' Quillstart "$q_file" ready
    printf '  run %d: empty window %s | empty popup %s | Quillstart %s\n' "$i" "$(tail -1 "$e_file")" \
      "$(tail -1 "$p_file")" "$(tail -1 "$q_file")"
  done
  results+=("$state $(median "$e_file" 1) $(median "$e_file" 3) $(median "$p_file" 1) $(median "$q_file" 1) \
$(median "$q_file" 2) $(median "$q_file" 3)")
done

echo
echo "medians; visible: the bar on screen; ready: the bar has taken its first keystroke;"
echo "each ratio is to a yardstick's visible time in the same runs: the decorated empty"
echo "window (window) and the borderless topmost popup of the bar's size (popup)"
printf '%-8s %8s %8s %8s %7s %7s %8s %7s %7s %10s %8s\n' "lists" "window" "popup" "visible" "/window" "/popup" \
  "ready" "/window" "/popup" "working MB" "above"
for result in "${results[@]}"; do
  read -r state e e_ws p q r q_ws <<<"$result"
  awk -v s="$state" -v e="$e" -v p="$p" -v q="$q" -v r="$r" -v w="$q_ws" -v ew="$e_ws" \
    'BEGIN { printf "%-8s %8s %8s %8s %7.2f %7.2f %8s %7.2f %7.2f %10s %8.1f\n",
             s, e, p, q, q / e, q / p, r, r / e, r / p, w, w - ew }'
done
echo "(working MB: Quillstart's working set when ready; above: over the empty window's)"
