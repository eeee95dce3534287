# Start-up benchmark: how long Quillstart.exe takes from process start to a
# visible bar, and how much memory it holds then, against the smallest window
# program built by the same toolchain (bench/empty_window.cpp). Both run under
# Wine on a private Xvfb display with a warm, persistent wineserver, in a
# fresh prefix, after one untimed warm-up start each. Every start is an
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
# the process is ended, so nothing is ever saved. Prints every run, the
# medians, their ratio to the empty window and the working sets. A figure,
# never a pass/fail test.
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
cp "$win_build/bench/empty_window.exe" "$win_build/bench/startwait.exe" "$c/bench/"
# Quillstart is already known on this computer, so every run is an ordinary
# start to the bar and not the first start's name prompt.
# shellcheck source=../tests/e2e/data.sh
source tests/e2e/data.sh
E2E_WORK=$work
qs_start_wineserver
e2e_seed_family C

# Runs the stopwatch. Usage: measure RUNS PROGRAM TITLE OUTPUT [ready]
measure() {
  wine 'C:\bench\startwait.exe' "$1" "$2" "$3" ${5:-} >"$work/raw.out" 2>"$work/raw.err" || {
    tr -d '\r' <"$work/raw.out"
    echo "startup: $2 did not show its window" >&2
    exit 1
  }
  tr -d '\r' <"$work/raw.out" >"$4"
}

median() {
  sed -n 's/^median: \([0-9.]*\) ms$/\1/p' "$1"
}
ready() {
  sed -n 's/^ready: \([0-9.]*\) ms$/\1/p' "$1"
}
working_set() {
  sed -n 's/^working set: \([0-9.-]*\) MB$/\1/p' "$1"
}

echo "startup: display $DISPLAY, warm-up"
measure 1 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm-quillstart.txt"
measure 1 'C:\bench\empty_window.exe' 'Empty Window' "$work/warm-empty.txt"

echo "startup: empty_window.exe, $runs runs"
measure "$runs" 'C:\bench\empty_window.exe' 'Empty Window' "$work/empty.txt"
sed 's/^/  /' "$work/empty.txt"
e=$(median "$work/empty.txt")
e_ws=$(working_set "$work/empty.txt")

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
  echo "startup: Quillstart.exe, $state lists, $runs runs"
  measure 1 'C:\Quillstart\Quillstart.exe' Quillstart "$work/warm-$state.txt" ready
  measure "$runs" 'C:\Quillstart\Quillstart.exe' Quillstart "$work/quillstart-$state.txt" ready
  sed 's/^/  /' "$work/quillstart-$state.txt"
  q_file=$work/quillstart-$state.txt
  results+=("$state $(median "$q_file") $(ready "$q_file") $(working_set "$q_file")")
done

echo
echo "visible: the bar on screen; ready: the bar has taken its first keystroke"
printf '%-28s %10s %8s %10s %8s %14s %12s\n' "program" "visible ms" "ratio" "ready ms" "ratio" "working set MB" "above empty"
printf '%-28s %10s %8s %10s %8s %14s %12s\n' "empty_window.exe" "$e" "1.00" "-" "-" "$e_ws" "0.0"
for result in "${results[@]}"; do
  read -r state q r q_ws <<<"$result"
  awk -v s="Quillstart.exe, $state lists" -v q="$q" -v r="$r" -v e="$e" -v w="$q_ws" -v ew="$e_ws" \
    'BEGIN { printf "%-28s %10s %8.2f %10s %8.2f %14s %12.1f\n", s, q, q / e, r, r / e, w, w - ew }'
done
