#!/usr/bin/env bash
# Soak test, not part of CI: N Commands typed into the real bar under Wine, as
# a person who keeps the bar open for weeks types them, with Quillstart's
# memory and handles printed at the start, every 1,000 Commands and at the
# end (tests/tools/workingset.exe: GetProcessMemoryInfo, handle and GUI
# object counts). The Commands take turns:
#   w;soak<i>.example     opens http://www.soak<i>.example: the recorder
#   zz soak <i>           no such code: nothing runs, the text stays
#   c.nosuchapplet<i>     no such Control Panel applet: nothing runs
#   p-nosuch<i>           no such Program in the (empty) Launch List
# Each web Command's launch is waited for. The bar empties its box after every
# 61 seconds of text-bearing time added up over the run (IdleTicks is never
# reset otherwise), which can fall in the middle of a typed Command: a web
# Command whose launch does not come is typed once more, and counted as
# retyped. At every report the recorder must have logged exactly the web
# Commands typed so far and nothing else, and the bar must still be up. A bar
# that is gone or a launch of anything else stops the soak; web Commands that
# did not reach the recorder even when retyped are listed and the soak goes
# on, failing at the end.
# Usage: tests/e2e/soak.sh N   (run it under nice; it takes a while)
# Environment: QS_WIN_BUILD, E2E_EXE, E2E_TOOLS as for tests/e2e/run_e2e.sh.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
root=$PWD
commands=${1:-}
[[ "$commands" =~ ^[0-9]+$ ]] && [ "$commands" -gt 0 ] || { echo "usage: $0 N" >&2; exit 2; }

win_build=${QS_WIN_BUILD:-build/win}
E2E_EXE=$(realpath -m "${E2E_EXE:-$win_build/win32/Quillstart.exe}")
E2E_TOOLS=$(realpath -m "${E2E_TOOLS:-$win_build/tests/tools}")
E2E_ARTIFACTS=$root/build/soak-artifacts
E2E_WORK=$(mktemp -d /tmp/quillstart-soak.XXXXXX)
export QS_SCREEN=${QS_SCREEN:-1920x1440}
E2E_TEXT=""

# shellcheck source=../../scripts/session.sh
source scripts/session.sh
# shellcheck source=lib.sh
source tests/e2e/lib.sh
# shellcheck source=data.sh
source tests/e2e/data.sh

trap e2e_end_session EXIT

# Keeps the screen, the launch log, what the box holds and where the keyboard
# focus is in build/soak-artifacts/. Usage: keep_evidence LABEL
keep_evidence() {
  e2e_screenshot "$1"
  cp "$(e2e_launch_log)" "$E2E_ARTIFACTS/launches-$1.log" 2>/dev/null
  e2e_probe && echo "soak: the box holds \"$E2E_TEXT\""
  e2e_focus && echo "soak: focus $(e2e_focus_summary)"
}

# Stops the soak. Usage: fail COUNT REASON
fail() {
  echo "soak: FAILED after $1 Commands: $2"
  keep_evidence failed
  exit 1
}

# One line of Quillstart's memory and handles. Usage: report LABEL
report() {
  wine "$E2E_TOOLS/workingset.exe" Quillstart.exe >"$E2E_WORK/ws.out" 2>/dev/null || return 1
  local out
  out=$(tr -d '\r' <"$E2E_WORK/ws.out")
  field() { sed -n "s/^$1=//p" <<<"$out"; }
  printf '%-10s working set %7s KB  peak %7s KB  private %7s KB  handles %5s  gdi %4s  user %4s\n' "$1" \
    "$(field working_set_kb)" "$(field peak_working_set_kb)" "$(field private_kb)" "$(field handles)" \
    "$(field gdi)" "$(field user)"
}

# Whatever the box holds is selected and typed over, as a person does.
type_command() {
  xdotool key End shift+Home
  xdotool type --delay 8 -- "$1"
  xdotool key Return
}

launches_are() {
  [ "$(e2e_log_lines)" -eq "$1" ]
}

# After COUNT Commands: every web Command so far reached the recorder, and
# nothing else did; the bar is still up. Usage: check COUNT
lost=0
retyped=0
checked=0
check() {
  local count=$1
  local expected=$(((count + 3) / 4))
  qs_poll 60 launches_are "$expected"
  if [ "$expected" -gt 0 ] && grep -vqE 'http://www\.soak[0-9]+\.example' "$(e2e_launch_log)"; then
    fail "$count" "something else was launched: $(grep -vE 'http://www\.soak[0-9]+\.example' "$(e2e_launch_log)" | head -3)"
  fi
  e2e_bar_visible || fail "$count" "the bar is gone"
  local i missing=""
  for ((i = checked + 1; i <= count; i++)); do
    [ $((i % 4)) -eq 1 ] && ! e2e_log_has "http://www.soak$i.example" && missing+=" $i"
  done
  checked=$count
  if [ -n "$missing" ]; then
    lost=$((lost + $(wc -w <<<"$missing")))
    echo "soak: after $count Commands, web Commands that did not reach the recorder:$missing"
    keep_evidence "lost-$count"
  fi
}

for f in "$E2E_EXE" "$E2E_TOOLS/recorder.exe" "$E2E_TOOLS/probe.exe" "$E2E_TOOLS/drivetype.exe" \
  "$E2E_TOOLS/workingset.exe"; do
  [ -f "$f" ] || { echo "soak: missing $f (build with scripts/build.sh win)"; exit 1; }
done
mkdir -p "$E2E_ARTIFACTS"
qs_start_display "$E2E_WORK" || { echo "soak: no X display"; exit 1; }
e2e_setup_prefix || { echo "soak: prefix: $E2E_REASON"; exit 1; }
e2e_start_known || { echo "soak: $E2E_REASON"; exit 1; }
e2e_click_box || { echo "soak: $E2E_REASON"; exit 1; }
echo "soak: display $DISPLAY, $commands Commands"
started=$(date +%s)
start_line=$(report start) || fail 0 "workingset.exe found no Quillstart.exe"
echo "$start_line"

for i in $(seq "$commands"); do
  case $((i % 4)) in
    1) text="w;soak$i.example" ;;
    2) text="zz soak $i" ;;
    3) text="c.nosuchapplet$i" ;;
    0) text="p-nosuch$i" ;;
  esac
  type_command "$text"
  if [ $((i % 4)) -eq 1 ] && ! qs_poll 15 e2e_log_has "http://www.soak$i.example"; then
    retyped=$((retyped + 1))
    type_command "$text"
    qs_poll 15 e2e_log_has "http://www.soak$i.example"
  fi
  if [ $((i % 1000)) -eq 0 ] || [ "$i" -eq "$commands" ]; then
    check "$i"
    report "$i" || fail "$i" "workingset.exe found no Quillstart.exe"
    # The box keeps the focus; a click puts it back should anything have
    # taken it.
    e2e_click_box >/dev/null 2>&1
  fi
done

echo
echo "soak: $commands Commands in $(($(date +%s) - started)) s, $(e2e_log_lines) of $(((commands + 3) / 4))" \
  "web Commands reached the recorder, $retyped of them typed a second time"
echo "$start_line"
report end
[ "$lost" -eq 0 ] || { echo "soak: FAILED: $lost web Commands did not reach the recorder"; exit 1; }
