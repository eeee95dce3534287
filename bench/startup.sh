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
# the process is ended, so nothing is ever saved.
#
# Durations inside the process hold far better than the stopwatch, so a
# second build with start-up marks (QUILL_STARTUP_MARKS, build/win-marks)
# of Quillstart and of the popup is started in the same turns: its marks
# give the pre-show time (from the program's entry to its show) beside the
# popup's own, and the first keystroke's wait (from the bar's show until the
# loop takes the key that the stopwatch typed the moment it saw the bar).
#
# For each list state the empty window, the empty popup, Quillstart, the
# popup with marks and Quillstart with marks start in turn, run by run;
# prints every run, the medians, their ratios to each yardstick's median of
# the same runs, the working sets and the marks' figures. A figure, never a
# pass/fail test.
# Usage: bash bench/startup.sh   (QS_BENCH_RUNS=15 runs each by default;
#        QS_BENCH_LISTS="empty full spread" picks the list states, in order,
#        "empty full" by default; QS_BENCH_OTHER names another Quillstart.exe
#        built with marks, say of an earlier commit, which then starts in the
#        same turns, so that a change's saving shows in one run)
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${QS_BENCH_RUNS:-15}
list_states=${QS_BENCH_LISTS:-empty full}
win_build=${QS_WIN_BUILD:-build/win}
marks_build=${QS_MARKS_BUILD:-build/win-marks}
[ "$runs" -ge 7 ] || { echo "startup: at least 7 runs make a median here" >&2; exit 2; }

bash scripts/install-deps.sh
bash scripts/build.sh win
[ -f "$marks_build/build.ninja" ] || cmake -S . -B "$marks_build" -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake \
  -DCMAKE_BUILD_TYPE=Release -DQS_BUILD_TESTS=OFF -DQUILL_STARTUP_MARKS=ON >/dev/null
ninja -C "$marks_build" -j2 Quillstart empty_popup

# shellcheck source=wine_bench.sh
source bench/wine_bench.sh
mkdir -p "$c/benchmarks"
cp "$win_build/bench/empty_window.exe" "$win_build/bench/empty_popup.exe" "$win_build/bench/startwait.exe" "$c/bench/"
# The popup with marks lies in a folder of its own. Quillstart must start
# from the one folder its family record names, or each start would be a
# moved program's: the build to start is copied there before each start.
cp "$marks_build/bench/empty_popup.exe" "$c/benchmarks/empty_popup.exe"
cp "$win_build/win32/Quillstart.exe" "$work/Quillstart-product.exe"
cp "$marks_build/win32/Quillstart.exe" "$work/Quillstart-marks.exe"
other=${QS_BENCH_OTHER:-}
[ -z "$other" ] || cp "$other" "$work/Quillstart-other.exe"
marks_file='C:\bench\marks.txt'

# Puts the product build (product) or the build with marks (marks) in
# Quillstart's folder. Usage: use_quillstart product|marks|other
use_quillstart() {
  cp "$work/Quillstart-$1.exe" "$c/Quillstart/Quillstart.exe"
}
# Quillstart is already known on this computer, so every run is an ordinary
# start to the bar and not the first start's name prompt.
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

# The same for a build with marks, appending "pre-show key-wait" from its
# marks to the line: ms from the entry to the show of the bar (or of the
# popup), and from that show to the first key taken ("-" without one).
# Usage: measure_marks PROGRAM TITLE OUTPUT [ready]
measure_marks() {
  QUILL_MARKS_FILE=$marks_file measure "$@"
  local marks=$c/bench/marks.txt line
  [ -f "$marks" ] || { echo "startup: $1 wrote no marks" >&2; exit 1; }
  cp "$marks" "$work/marks-last.txt"
  line=$(tail -1 "$3")
  figures=$(tr -d '\r' <"$marks" | awk '
    $2 == "entry" && entry == "" { entry = $1 }
    $2 == "shown" && ($3 == "" || $3 == "frmMain") && shown == "" { shown = $1 }
    $2 == "key" && $3 == "taken" && key == "" { key = $1 }
    END { printf "%.2f %s\n", shown - entry, (key == "" ? "-" : sprintf("%.2f", key - shown)) }')
  sed -i '$d' "$3"
  echo "$line $figures" >>"$3"
}

# The median of one column of a measure file. Usage: column_median FILE COLUMN
column_median() {
  awk -v c="$2" '{ print $c }' "$1" | median
}

echo "startup: display $DISPLAY, warm-up"
use_quillstart product
measure 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt"
measure 'C:\bench\empty_window.exe' 'Empty Window' "$work/warm.txt"
measure 'C:\bench\empty_popup.exe' 'Empty Popup' "$work/warm.txt"
measure_marks 'C:\benchmarks\empty_popup.exe' 'Empty Popup' "$work/warm.txt"
use_quillstart marks
measure_marks 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt" ready

# Each list state is measured with runs of the yardsticks and of Quillstart
# taken in turn, so that a machine growing slower or faster
# during the benchmark weighs on both alike.
results=()
marks_results=()
for state in $list_states; do
  case "$state" in
    empty) ;;
    full | spread)
      echo "startup: seeding $state lists (5 x 32,767 items)"
      python3 bench/seed_lists.py "$c" "$state"
      ;;
    *) echo "startup: unknown list state $state" >&2; exit 2 ;;
  esac
  use_quillstart product
  measure 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt" ready
  use_quillstart marks
  measure_marks 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm.txt" ready
  e_file=$work/empty-$state.txt
  p_file=$work/popup-$state.txt
  q_file=$work/quillstart-$state.txt
  pm_file=$work/popup-marks-$state.txt
  qm_file=$work/quillstart-marks-$state.txt
  echo "startup: $state lists, $runs runs of each in turn (visible ms, ready ms, working set MB;"
  echo "         with marks also pre-show ms and key wait ms)"
  for i in $(seq "$runs"); do
    measure 'C:\bench\empty_window.exe' 'Empty Window' "$e_file"
    measure 'C:\bench\empty_popup.exe' 'Empty Popup' "$p_file"
    use_quillstart product
    measure 'C:\Quillstart\Quillstart.exe' Quillstart "$q_file" ready
    measure_marks 'C:\benchmarks\empty_popup.exe' 'Empty Popup' "$pm_file"
    use_quillstart marks
    measure_marks 'C:\Quillstart\Quillstart.exe' Quillstart "$qm_file" ready
    cp "$work/marks-last.txt" "$work/marks-$state.txt"
    printf '  run %d: empty window %s | empty popup %s | Quillstart %s\n' "$i" "$(tail -1 "$e_file")" \
      "$(tail -1 "$p_file")" "$(tail -1 "$q_file")"
    printf '         with marks: empty popup %s | Quillstart %s\n' "$(tail -1 "$pm_file")" "$(tail -1 "$qm_file")"
    if [ -n "$other" ]; then
      use_quillstart other
      measure_marks 'C:\Quillstart\Quillstart.exe' Quillstart "$work/other-$state.txt" ready
      printf '         the other build with marks: %s\n' "$(tail -1 "$work/other-$state.txt")"
    fi
  done
  results+=("$state $(column_median "$e_file" 1) $(column_median "$e_file" 3) $(column_median "$p_file" 1) $(column_median "$q_file" 1) \
$(column_median "$q_file" 2) $(column_median "$q_file" 3)")
  marks_results+=("$state $(column_median "$pm_file" 4) $(column_median "$qm_file" 4) $(column_median "$qm_file" 5)")
  [ -z "$other" ] || marks_results+=("$state-other $(column_median "$pm_file" 4) $(column_median "$work/other-$state.txt" 4) \
$(column_median "$work/other-$state.txt" 5)")
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

echo
echo "medians of the builds with marks, ms inside the process: pre-show, from the entry to the"
echo "show, of the popup and of Quillstart, and Quillstart's over the popup's; key wait, from"
echo "the bar's show until the first key is taken"
printf '%-12s %9s %9s %9s %9s\n' "lists" "popup" "bar" "over" "key wait"
for result in "${marks_results[@]}"; do
  read -r state p q k <<<"$result"
  awk -v s="$state" -v p="$p" -v q="$q" -v k="$k" \
    'BEGIN { printf "%-12s %9.2f %9.2f %9.2f %9.2f\n", s, p, q, q - p, k }'
done
for state in $list_states; do
  echo
  echo "marks of the last start of Quillstart with marks, $state lists (ms after the entry):"
  tr -d '\r' <"$work/marks-$state.txt" | sed 's/^/  /'
done
