# shellcheck shell=bash
# A damaged settings record: text where a number belongs. The start reports
# the failure with the bug dialog before the bar shows, goes on when it is
# answered, and the exit writes the record anew, whole.

damaged_start() {
  local data
  data="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart"
  e2e_seed_family C
  e2e_write_lines "$data/Set.Morvane" 10 57 100 left '""' -1 -1 -1 8 2 0
  e2e_launch
}

# Reads the dialog again and looks for a text in its message box.
dialog_body_has_read() {
  dialog_read && dialog_body_has "$1"
}

# The bug dialog of a start, naming ROUTINE, shows before the bar; "No"
# lets the start go on to the bar. Usage: bug_before_the_bar ROUTINE [SHOT]
bug_before_the_bar() {
  qs_poll 30 dialog_heading_shows "$(dialog_user_name)" || e2e_fail "no dialog came up" || return 1
  qs_poll 10 dialog_body_has_read "Quillstart:Bug:$1" || e2e_fail "the dialog does not name $1" || return 1
  e2e_bar_visible && { e2e_fail "the bar showed before the failure was answered" || return 1; }
  [ -z "${2:-}" ] || dialog_screenshot "$2"
  dialog_click_button No || return 1
  qs_poll 30 e2e_bar_visible || e2e_fail "the bar did not come after \"No\"" || return 1
  qs_poll 10 e2e_probe || e2e_fail "the probe found no Command box in the bar"
}

damaged_record_reports_and_the_start_goes_on() {
  bug_before_the_bar ControlDataGet damaged-record || return 1
  e2e_command 'w;example.org' || return 1
  e2e_wait_launch '"http://www.example.org"' || return 1
  e2e_close_bar || return 1
  local set
  set="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/Set.Morvane"
  [ "$(grep -c $'\r$' "$set")" -eq 11 ] && [ "$(head -1 "$set")" = $'10\r' ] && ! grep -q left "$set" ||
    e2e_fail "the record was not written anew: $(od -c "$set" | head -4 | tr '\n' '|')"
}

e2e_scenario 'a settings record with text in a number: the bug dialog before the bar, then the start goes on' \
  damaged_record_reports_and_the_start_goes_on damaged_start

# A Program list that breaks off after its first record, while the record
# counts three: the start reports it with the bug dialog before the bar, the
# record read before the break joins the list, and the exit writes the list
# back as it stands.
damaged_list_start() {
  local data
  data="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart"
  e2e_seed_family C
  e2e_seed_program C 'Apps\myPlayer.exe'
  e2e_seed_set "$data/Set.Morvane" 2 57 0 'C:\Quillstart'
  e2e_write_lines "$data/ListProg.Morvane" '"myPlayer","C:\Apps\myPlayer.exe"' '"cut"'
  e2e_launch
}

damaged_list_reports_before_the_bar() {
  bug_before_the_bar ActionLaunchListGet || return 1
  e2e_command 'p-myPlayer' || return 1
  e2e_wait_launch 'myPlayer.exe' || return 1
  e2e_close_bar || return 1
  local data
  data="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart"
  [ "$(tr -d '\r' <"$data/ListProg.Morvane")" = '"myPlayer","C:\Apps\myPlayer.exe"' ] ||
    e2e_fail "the list was not written back with its one record: $(od -c "$data/ListProg.Morvane" | head -3 | tr '\n' '|')"
}

e2e_scenario 'a Program list that breaks off: the bug dialog before the bar, then its first record starts' \
  damaged_list_reports_before_the_bar damaged_list_start
