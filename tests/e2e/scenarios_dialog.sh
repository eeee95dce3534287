# shellcheck shell=bash
# The message dialog: a program that cannot be started brings up the bug
# report dialog over the bar; "Yes" mails the failure tag to the maker and
# "No" closes the dialog and gives the bar back. The same dialog asks for a
# new name, with boxes that take letters only.

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

# The visible text boxes as "HEIGHT<tab>LEFT,TOP,RIGHT,BOTTOM<tab>TEXT", the
# message box (the tallest) first.
dialog_edits() {
  awk -F'\t' '$1 == "child=Edit" && $2 == 1 { split($3, r, ","); print (r[4] - r[2]) "\t" $3 "\t" $4 }' \
    <<<"$E2E_DIALOG" | sort -t$'\t' -k1,1nr
}

# The heading: a visible static control with the text, above the message box.
dialog_heading_is() {
  local boxTop
  boxTop=$(dialog_edits | head -1 | cut -f2 | cut -d, -f2)
  [ -n "$boxTop" ] || return 1
  awk -F'\t' -v text="$1" -v boxTop="$boxTop" '
    $1 == "child=Static" && $2 == 1 && $4 == text { split($3, s, ","); if (s[2] + 0 < boxTop + 0) found = 1 }
    END { exit !found }' <<<"$E2E_DIALOG"
}

# The text comes through the environment, since awk -v would turn the \r\n
# written for line ends into real ones.
dialog_body_has() {
  DIALOG_TEXT=$1 awk -F'\t' '$1 == "child=Edit" && $2 == 1 && index($4, ENVIRON["DIALOG_TEXT"]) { found = 1 }
    END { exit !found }' <<<"$E2E_DIALOG"
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

# The name boxes, left to right: "LEFT,TOP,RIGHT,BOTTOM<tab>TEXT" per line.
dialog_name_boxes() {
  dialog_edits | tail -n +2 | cut -f2- | sort -t, -k1,1n
}

# Clicks into the name box with the given number (1 to 3) and types.
dialog_type_name() {
  local rect l t r b
  rect=$(dialog_name_boxes | sed -n "${1}p" | cut -f1)
  IFS=, read -r l t r b <<<"$rect"
  [ -n "${b:-}" ] || e2e_fail "no name box $1" || return 1
  xdotool mousemove $(((l + r) / 2)) $(((t + b) / 2)) click 1
  sleep 0.2
  xdotool type --delay 40 -- "$2"
}

dialog_name_is() {
  dialog_read && [ "$(dialog_name_boxes | sed -n "${1}p" | cut -f2)" = "$2" ]
}

name_prompt_takes_letters_only() {
  [ -f "$E2E_TOOLS/children.exe" ] || e2e_fail "missing $E2E_TOOLS/children.exe" || return 1
  e2e_command 'a.ChangeUserName' || return 1
  qs_poll 15 dialog_read || e2e_fail "no name prompt appeared" || return 1
  sleep 0.5
  dialog_read || e2e_fail "the name prompt went away" || return 1
  dialog_heading_is 'New Name Please' || e2e_fail "the heading is not \"New Name Please\"" || return 1
  dialog_body_has 'Please type your name above. Use only alphabets please.' ||
    e2e_fail "the prompt text is missing" || return 1
  local label
  for label in 'First Name' 'Last Name' 'Nick Name' OK Cancel; do
    dialog_has_label "$label" || e2e_fail "no label \"$label\"" || return 1
  done
  [ "$(dialog_name_boxes | wc -l)" -eq 3 ] || e2e_fail "expected three name boxes" || return 1
  dialog_type_name 1 'Ada 7-' || return 1
  qs_poll 5 dialog_name_is 1 'Ada' || e2e_fail "the first name box holds something else than \"Ada\"" || return 1
  dialog_type_name 3 'Quill' || return 1
  qs_poll 5 dialog_name_is 3 'Quill' || e2e_fail "the nick name box does not hold \"Quill\"" || return 1
  dialog_body_has 'First Name: Ada\r\nLast Name: Empty\r\nNick Name : Quill' ||
    e2e_fail "the preview does not show the names" || return 1
  dialog_screenshot name-prompt
  dialog_click_button Cancel || return 1
  qs_poll 10 dialog_gone || e2e_fail "the name prompt stayed after \"Cancel\"" || return 1
  e2e_wait_text ""
}

e2e_scenario 'p=C:\nope.exe shows the bug dialog; "Yes" mails the tag to the maker' bug_dialog_yes_mails_the_tag
e2e_scenario 'p=C:\nope.exe shows the bug dialog; "No" closes it and the bar goes on' bug_dialog_no_gives_the_bar_back
e2e_scenario 'a.ChangeUserName asks for a name in boxes that take letters only' name_prompt_takes_letters_only
