# shellcheck shell=bash
# The desktop shortcut, made and taken away by two additional tasks typed in
# short: auto-fill completes "a.cr" and "a.d" to the task names.

desktop_link() {
  echo "$(e2e_drive_dir C)/users/$(dialog_user_name)/Desktop/Quillstart.lnk"
}

# Types a short task name key by key, checks its completion, runs it and
# answers the message that follows with OK.
# Usage: desktop_task TYPED COMPLETED MESSAGE
desktop_task() {
  lists_type "$1" || return 1
  qs_poll 10 e2e_text_is "$2" || e2e_fail "after \"$1\" the box holds \"$E2E_TEXT\", expected \"$2\"" || return 1
  xdotool key Return
  qs_poll 15 dialog_read || e2e_fail "no message after $2" || return 1
  sleep 0.5
  dialog_read || return 1
  dialog_body_has "$3" || e2e_fail "the message does not say \"$3\"" || return 1
  dialog_click_button OK || return 1
  qs_poll 10 dialog_gone || e2e_fail "the message stayed after OK"
}

# The link names the program in its UTF-16 or its 8-bit strings. (grep reads
# to the end: with pipefail an early exit would fail the pipe.)
desktop_link_strings() {
  strings -e l "$1"
  strings "$1"
}

desktop_link_names_the_program() {
  desktop_link_strings "$1" | grep -iF 'C:\Quillstart\Quillstart.exe' >/dev/null
}

shortcut_is_made_and_taken_away() {
  local link
  link=$(desktop_link)
  [ ! -e "$link" ] || e2e_fail "a shortcut was on the Desktop before the task" || return 1
  desktop_task 'a.cr' 'a.CreateAppShortcut' \
    'A shortcut of Quillstart has been created and placed on your Desktop.' || return 1
  [ -s "$link" ] || e2e_fail "no Quillstart.lnk on the Desktop" || return 1
  desktop_link_names_the_program "$link" ||
    e2e_fail "the shortcut does not lead to C:\\Quillstart\\Quillstart.exe: $(desktop_link_strings "$link" | tr '\n' '|')" || return 1
  desktop_task 'a.d' 'a.DeleteAPPShortcut' 'Shortcut of Quillstart has been deleted from your Desktop.' || return 1
  [ ! -e "$link" ] || e2e_fail "the shortcut is still on the Desktop"
}

e2e_scenario 'a.cr makes the desktop shortcut, a.d takes it away, each with its message' shortcut_is_made_and_taken_away
