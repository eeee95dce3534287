# shellcheck shell=bash
# The message dialog: a program that cannot be started brings up the bug
# report dialog over the bar; "Yes" mails the failure tag to the maker and
# "No" closes the dialog and gives the bar back.

DIALOG_TAG='Quillstart:Bug:ActionProgramStartA'
E2E_DIALOG=""

# The maker's mail address as the program has it.
dialog_maker_address() {
  sed -n 's/.*MailAddress = L"\([^"]*\)".*/\1/p' src/common/maker.h
}

# The Windows user name in the prefix: the heading when no nick name is set.
dialog_user_name() {
  wine cmd /c 'echo %USERNAME%' >"$E2E_WORK/username.out" 2>/dev/null
  tr -d '\r\n' <"$E2E_WORK/username.out"
}

# Reads the shown dialog with the children tool into E2E_DIALOG.
dialog_read() {
  wine "$E2E_TOOLS/children.exe" >"$E2E_WORK/children.out" 2>"$E2E_WORK/children.err" || return 1
  E2E_DIALOG=$(tr -d '\r' <"$E2E_WORK/children.out")
  [ -n "$E2E_DIALOG" ]
}

dialog_gone() {
  ! wine "$E2E_TOOLS/children.exe" >/dev/null 2>&1
}

# True when a visible static control shows exactly that text.
dialog_has_label() {
  awk -F'\t' -v text="$1" '$1 == "child=Static" && $2 == 1 && $4 == text { found = 1 } END { exit !found }' \
    <<<"$E2E_DIALOG"
}

# The heading: a visible static control with the text, above the message box.
dialog_heading_is() {
  awk -F'\t' -v text="$1" '
    $1 == "child=Edit" && $2 == 1 && $4 ~ /\\r\\n/ { split($3, e, ","); boxTop = e[2] }
    $1 == "child=Static" && $2 == 1 && $4 == text { split($3, s, ","); top = s[2]; found = 1 }
    END { exit !(found && boxTop != "" && top < boxTop) }' <<<"$E2E_DIALOG"
}

dialog_body_has() {
  awk -F'\t' -v text="$1" '$1 == "child=Edit" && $2 == 1 && index($4, text) { found = 1 } END { exit !found }' \
    <<<"$E2E_DIALOG"
}

# Prints "X Y", the screen centre of the picture button just left of the
# label with the given caption, on the same row.
dialog_button_centre() {
  awk -F'\t' -v label="$1" '
    $1 == "child=Static" && $2 == 1 && $4 == label { split($3, r, ","); labelLeft = r[1]; labelTop = r[2]; labelBottom = r[4] }
    $1 == "child=QuillstartPicture" && $2 == 1 { n++; split($3, p, ","); l[n] = p[1]; t[n] = p[2]; r2[n] = p[3]; b[n] = p[4] }
    END {
      best = 0
      for (i = 1; i <= n; i++) {
        middle = (t[i] + b[i]) / 2
        if (middle >= labelTop && middle <= labelBottom && r2[i] <= labelLeft && (best == 0 || r2[i] > r2[best])) best = i
      }
      if (best == 0) exit 1
      printf "%d %d\n", (l[best] + r2[best]) / 2, (t[best] + b[best]) / 2
    }' <<<"$E2E_DIALOG"
}

# Saves the whole screen and the dialog alone.
dialog_screenshot() {
  e2e_screenshot "$1"
  local rect l t r b
  rect=$(sed -n 's/^window=//p' <<<"$E2E_DIALOG")
  IFS=, read -r l t r b <<<"$rect"
  [ -n "$b" ] || return 0
  import -window root -crop "$((r - l + 16))x$((b - t + 16))+$((l - 8))+$((t - 8))" +repage \
    "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$1-window.png" >/dev/null 2>&1 || true
}

# Types the Command of a missing program and checks the dialog that follows.
dialog_bring_up_bug() {
  [ -f "$E2E_TOOLS/children.exe" ] || e2e_fail "missing $E2E_TOOLS/children.exe" || return 1
  local user
  user=$(dialog_user_name)
  [ -n "$user" ] || e2e_fail "the prefix has no %USERNAME%" || return 1
  e2e_command 'p=C:\nope.exe' || return 1
  qs_poll 15 dialog_read || e2e_fail "no dialog appeared" || return 1
  # Give it a moment to finish painting before it is judged.
  sleep 0.5
  dialog_read || e2e_fail "the dialog went away" || return 1
  dialog_screenshot bug-dialog
  [ "$(sed -n 's/^owner=//p' <<<"$E2E_DIALOG")" = "Quillstart" ] ||
    e2e_fail "the dialog is not owned by the bar: $(head -3 <<<"$E2E_DIALOG" | tr '\n' '|')" || return 1
  dialog_body_has "$DIALOG_TAG" || e2e_fail "the dialog does not show $DIALOG_TAG" || return 1
  dialog_body_has 'Do you want to report this bug now?' || e2e_fail "the dialog does not ask to report" || return 1
  dialog_heading_is "$user" || e2e_fail "the heading is not the user name \"$user\"" || return 1
  dialog_has_label 'New Message' || e2e_fail "no title strip \"New Message\"" || return 1
  dialog_has_label 'Yes' || e2e_fail "no label \"Yes\"" || return 1
  dialog_has_label 'No' || e2e_fail "no label \"No\""
}

dialog_click_button() {
  local x y
  read -r x y < <(dialog_button_centre "$1") || true
  [ -n "${y:-}" ] || e2e_fail "no picture button beside \"$1\"" || return 1
  xdotool mousemove "$x" "$y"
  sleep 0.3
  dialog_screenshot "hover-$1"
  xdotool click 1
}

bug_dialog_yes_mails_the_tag() {
  dialog_bring_up_bug || return 1
  local url="mailto:$(dialog_maker_address)?subject=Quillstart - Found Bug&body=$DIALOG_TAG"
  dialog_click_button Yes || return 1
  qs_poll 10 dialog_gone || e2e_fail "the dialog stayed after \"Yes\"" || return 1
  e2e_wait_launch "$url" || return 1
  sleep 1
  [ "$(e2e_log_lines)" -eq 1 ] || e2e_fail "expected one launch: $(e2e_log_summary)" || return 1
  local line
  line=$(head -1 "$(e2e_launch_log)")
  [[ "$line" == *" \"$url\"" ]] || e2e_fail "the mail program got $line, expected \"$url\""
}

bug_dialog_no_gives_the_bar_back() {
  dialog_bring_up_bug || return 1
  dialog_click_button No || return 1
  qs_poll 10 dialog_gone || e2e_fail "the dialog stayed after \"No\"" || return 1
  sleep 1
  [ "$(e2e_log_lines)" -eq 0 ] || e2e_fail "\"No\" launched something: $(e2e_log_summary)" || return 1
  e2e_command "w;example.org" after-no || return 1
  e2e_wait_launch '"http://www.example.org"' || return 1
  e2e_wait_text ""
}

e2e_scenario 'p=C:\nope.exe shows the bug dialog; "Yes" mails the tag to the maker' bug_dialog_yes_mails_the_tag
e2e_scenario 'p=C:\nope.exe shows the bug dialog; "No" closes it and the bar goes on' bug_dialog_no_gives_the_bar_back
