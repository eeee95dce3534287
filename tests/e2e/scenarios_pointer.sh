# shellcheck shell=bash
# Adding a running program by pointing at it: in the Add Item pane the user
# presses "Find Program Path", drags onto a window of Wine's Notepad and
# releases; Notepad's path stands in the path box. A press and release in
# place finds no path and says so.

POINTER_BUTTON_TIP='Left click on "Find Program Path" green button, keep the mouse button down, place cursor on the open Window of the Program that you want to add and release mouse button. Program file path should appear in "Program File Path" Text box.'

pointer_notepad_shown() {
  POINTER_NOTEPAD=$(xdotool search --onlyvisible --name 'Notepad' 2>/dev/null | head -1)
  [ -n "$POINTER_NOTEPAD" ]
}

pointer_path_is_notepad() {
  browse_children QuillstartDialog || return 1
  local path
  while IFS= read -r path; do
    [[ "${path,,}" == 'c:\windows\'*'\notepad.exe' ]] && return 0
  done < <(awk -F'\t' '$1 == "child=Edit" && $2 == 1 { print $4 }' <<<"$E2E_CHILDREN")
  return 1
}

pointer_finds_a_running_programs_path() {
  (cd "$WINEPREFIX/drive_c" && exec wine notepad >>"$E2E_WORK/notepad.log" 2>&1 &)
  qs_poll 20 pointer_notepad_shown || e2e_fail "Notepad did not show its window" || return 1
  xdotool windowmove "$POINTER_NOTEPAD" 900 700
  browse_open 0 || return 1
  e2e_child_centre QuillstartDialog 'Add Item' "$POINTER_BUTTON_TIP" ||
    e2e_fail "the pane shows no \"Find Program Path\" button" || return 1
  local x=$E2E_X y=$E2E_Y
  # A press and release in place: no tick saw a window.
  xdotool mousemove "$x" "$y" mousedown 1 mouseup 1
  browse_expect_message 'Could not find the Path of the selected Program' 'Add Item' || return 1
  # A drag onto Notepad, resting there for a few ticks before the release.
  xdotool mousemove "$x" "$y" mousedown 1
  xdotool mousemove 700 500 sleep 0.1 mousemove 1000 800 sleep 0.1 mousemove 1010 810 sleep 0.5
  e2e_screenshot dragging
  xdotool mouseup 1
  qs_poll 10 pointer_path_is_notepad || e2e_fail "the path box does not hold Notepad's path: $(grep 'child=Edit' <<<"$E2E_CHILDREN" | tr '\n' '|')" || return 1
  e2e_screenshot found
  browse_name_and_enter notes || return 1
  qs_poll 10 browse_path_is '' || e2e_fail "the found program was not added" || return 1
  e2e_command 'p-notes' || return 1
  qs_poll 15 pointer_two_notepads || e2e_fail "p-notes did not start a second Notepad"
}

pointer_two_notepads() {
  [ "$(xdotool search --onlyvisible --name 'Notepad' 2>/dev/null | wc -l)" -ge 2 ]
}

e2e_scenario 'a running program is added by pointing at its window, and a click in place finds no path' \
  pointer_finds_a_running_programs_path browse_start
