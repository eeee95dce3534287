# shellcheck shell=bash
# Starting on a computer for the first time, starting a second copy, and the
# files an exit and the end of a Windows session leave behind.

START_DATA='Morvane/Morvane Apps/Quillstart'

# Nothing of Quillstart's is on the computer yet; the name prompt comes
# before the bar, so only the process is started here.
start_first_time() {
  e2e_launch
}

dialog_heading_shows() {
  dialog_read && dialog_heading_is "$1"
}

dialog_ok_shown() {
  dialog_read && dialog_button_centre OK >/dev/null
}

# The expected bytes of a record file, one value per argument.
start_expected() {
  printf '%s\r\n' "${@:2}" >"$E2E_WORK/$1.expected"
}

first_start_asks_the_name_then_welcomes() {
  local c
  c=$(e2e_drive_dir C)
  qs_poll 30 dialog_heading_shows 'Your Name Please' ||
    e2e_fail "no name prompt \"Your Name Please\" came up" || return 1
  e2e_bar_visible && { e2e_fail "the bar showed before the name was asked" || return 1; }
  sleep 0.5
  dialog_read || e2e_fail "the name prompt went away" || return 1
  dialog_body_has 'Just to become friends you can type your name above' || e2e_fail "the prompt text is missing" || return 1
  # The OK label stands from the start; its button shows once a letter is typed.
  dialog_has_label 'OK' || e2e_fail "no label \"OK\"" || return 1
  dialog_button_centre OK >/dev/null && { e2e_fail "the OK button shows before a letter is typed" || return 1; }
  dialog_screenshot first-name-prompt
  dialog_type_name 1 'Ada' || return 1
  qs_poll 5 dialog_name_is 1 'Ada' || e2e_fail "the first name box does not hold \"Ada\"" || return 1
  qs_poll 5 dialog_ok_shown || e2e_fail "the OK button did not show after a letter was typed" || return 1
  xdotool key Return
  qs_poll 30 e2e_bar_visible || e2e_fail "the bar did not come after the name" || return 1
  # With no nick name the heading is the Windows user's name.
  local user
  user=$(dialog_user_name)
  qs_poll 15 dialog_heading_shows "$user" || e2e_fail "no welcome dialog headed \"$user\" came after the bar" || return 1
  sleep 0.5
  dialog_read || return 1
  dialog_body_has 'If you missed it, main program window is at the top left corner of your screen.' ||
    e2e_fail "the welcome text is missing" || return 1
  dialog_screenshot first-start-welcome
  dialog_click_button OK || return 1
  qs_poll 10 dialog_gone || e2e_fail "the welcome dialog stayed after OK" || return 1
  e2e_expect_box_focus 'the first start' || return 1

  [ -d "$c/Morvane/Morvane Apps/Quillstart" ] || e2e_fail "the data folders were not made" || return 1
  start_expected Kinfold 7 0 -1 '""' '"Ada"' '""' '""' '""'
  e2e_same_bytes "$c/Morvane/Kinfold/Kinfold.Morvane" "$E2E_WORK/Kinfold.expected" || return 1
  start_expected Guru "\"Quillstart\",\"QSLauncher\",$(e2e_family_date),\"C:\\Quillstart\\\""
  e2e_same_bytes "$c/Morvane/Kinfold/Guru.Morvane" "$E2E_WORK/Guru.expected" || return 1
  wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Run' /v 'Morvane Quillstart' >"$E2E_WORK/run.out" 2>&1
  grep -qF 'C:\Quillstart\Quillstart.exe' "$E2E_WORK/run.out" ||
    e2e_fail "the autostart value was not written: $(tr -d '\r' <"$E2E_WORK/run.out" | tr '\n' '|')" || return 1
  [ ! -e "$c/$START_DATA/Set.Morvane" ] || e2e_fail "Set.Morvane was written before the exit" || return 1

  e2e_command 'w;example.org' first-command || return 1
  e2e_wait_launch '"http://www.example.org"' || return 1
  e2e_close_bar || return 1
  # The Add Item pane, loaded at start, opens in the program's folder and
  # keeps it as the last folder of a fixed disk.
  start_expected Set 10 57 0 0 '"C:\Quillstart"' -1 -1 -1 8 2 0
  e2e_same_bytes "$c/$START_DATA/Set.Morvane" "$E2E_WORK/Set.expected" || return 1
  start_expected COMData 2 -1 -1
  e2e_same_bytes "$c/$START_DATA/COMData.Morvane" "$E2E_WORK/COMData.expected" || return 1
  local extra
  extra=$(cd "$c/$START_DATA" && ls | grep -vx -e Set.Morvane -e COMData.Morvane)
  [ -z "$extra" ] || e2e_fail "files written for empty lists: $extra"
}

quillstart_processes() {
  wine "$E2E_TOOLS/winlist.exe" >"$E2E_WORK/winlist.out" 2>/dev/null
  tr -d '\r' <"$E2E_WORK/winlist.out" | awk -F'\t' 'tolower($2) ~ /\\quillstart\.exe$/ { print $1 }' | sort -u | wc -l
}

# A second copy finds the first, brings its minimised bar back with the
# caret in the Command box, and ends at once.
second_copy_surfaces_the_first_and_ends() {
  local id
  id=$(xdotool search --onlyvisible --name '^Quillstart$' | head -1)
  xdotool windowminimize "$id"
  qs_poll 10 e2e_bar_gone || e2e_fail "the bar could not be minimised" || return 1
  local began=$SECONDS
  (cd "$WINEPREFIX/drive_c" && timeout 30 wine 'C:\Quillstart\Quillstart.exe' >"$E2E_WORK/second.log" 2>&1)
  local status=$?
  [ "$status" -ne 124 ] || e2e_fail "the second copy was still running after 30 s" || return 1
  e2e_screenshot after-second-start
  [ "$(quillstart_processes)" -eq 1 ] || e2e_fail "expected one Quillstart with a window, found $(quillstart_processes)" || return 1
  qs_poll 10 e2e_bar_visible || e2e_fail "the first bar did not come back" || return 1
  echo "    second copy ended after $((SECONDS - began)) s" >&2
  # Typed straight away, without a click: the caret must already be there.
  xdotool key End shift+Home BackSpace
  xdotool type --delay 25 -- 'w;example.org'
  qs_poll 5 e2e_text_is 'w;example.org' || e2e_fail "keys typed after the return did not reach the box: \"$E2E_TEXT\"" || return 1
  xdotool key Return
  e2e_wait_launch '"http://www.example.org"'
}

# Windows ending the session saves like an exit: the files of a first exit
# appear.
session_end_saves() {
  local c
  c=$(e2e_drive_dir C)
  [ ! -e "$c/$START_DATA/Set.Morvane" ] || e2e_fail "Set.Morvane existed before the session ended" || return 1
  e2e_close_bar endsession || return 1
  start_expected Set 10 57 0 0 '"C:\Quillstart"' -1 -1 -1 8 2 0
  e2e_same_bytes "$c/$START_DATA/Set.Morvane" "$E2E_WORK/Set.expected"
}

e2e_scenario 'first start on a fixed disk: the name prompt before the bar, the welcome, the files of a first exit' \
  first_start_asks_the_name_then_welcomes start_first_time
e2e_scenario 'a second copy brings the running bar forward and ends' second_copy_surfaces_the_first_and_ends
e2e_scenario 'the end of the Windows session saves like an exit' session_end_saves
