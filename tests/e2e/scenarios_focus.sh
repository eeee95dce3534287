# shellcheck shell=bash
# Typing goes on while a pane stands open: after every road that opens or
# closes a window beside the bar, the keyboard focus of Quillstart's thread
# is where the program put it (focus.exe), and typed characters land there.

# Empties the Command box through the keyboard, so each check starts clean.
focus_empty_box() {
  e2e_click_box || return 1
  xdotool key End shift+Home BackSpace
  e2e_wait_text ""
}

focus_no_pane() {
  ! browse_children QuillstartDialog
}

focus_pane_closed() {
  qs_poll 10 focus_no_pane || e2e_fail "the pane stayed open after $1"
}

# Clicks a shown child of the open pane by its class and text.
focus_click_pane_child() {
  browse_children QuillstartDialog || e2e_fail "no pane is open" || return 1
  local rect
  rect=$(browse_child_rect "$1" "$2")
  [ -n "$rect" ] || e2e_fail "the pane shows no $1 \"$2\": $(tr '\n' '|' <<<"$E2E_CHILDREN")" || return 1
  browse_click_rect "$rect"
}

focus_roads_of_the_panes() {
  focus_empty_box || return 1
  browse_open 0 || return 1
  e2e_screenshot add-open
  e2e_expect_box_focus 'opening the Add Item pane' || return 1
  browse_open 1 || return 1
  e2e_expect_box_focus 'switching to the Open pane' || return 1
  bar_click PictureMenu1 || return 1
  focus_pane_closed 'its own button' || return 1
  e2e_expect_box_focus 'closing the Open pane by its own button' || return 1

  # A click into the pane makes it active; its close label still hands the
  # focus back to the Command box.
  browse_open 0 || return 1
  focus_click_pane_child Button File || return 1
  qs_poll 5 focus_pane_active || e2e_fail "a click into the pane did not make it active: $(e2e_focus_summary)" || return 1
  focus_click_pane_child Static Close || return 1
  focus_pane_closed 'its close label' || return 1
  e2e_expect_box_focus 'closing the Add Item pane by its close label' || return 1

  browse_open 0 || return 1
  xdotool key Escape
  focus_pane_closed 'Esc' || return 1
  e2e_expect_box_focus 'Esc in the Command box' || return 1

  # The Launch List is empty: the pane is refused without a word.
  bar_click PictureMenu2 || return 1
  e2e_expect_box_focus 'the refused Launch List' || return 1
  focus_no_pane || e2e_fail "an empty Launch List opened a pane" || return 1

  # Help closes the pane and takes the keyboard, to be read; Esc closes it
  # and gives the keyboard back to the Command box.
  browse_open 1 || return 1
  bar_click PictureHelp || return 1
  focus_pane_closed '"?"' || return 1
  qs_poll 5 focus_in_help || e2e_fail "Help did not take the keyboard: $(e2e_focus_summary)" || return 1
  xdotool key Escape
  qs_poll 10 help_gone || e2e_fail "Esc did not close Help" || return 1
  e2e_expect_box_focus 'Esc closing Help'
}

focus_in_help() {
  e2e_focus && [ "$(e2e_focus_field top)" = Help ]
}

focus_pane_active() {
  e2e_focus && [ "$(e2e_focus_field topclass)" = QuillstartDialog ]
}

focus_web_box_holds() {
  e2e_focus_on_bar_edit 2 && [ "$(e2e_focus_field text)" = "$1" ]
}

focus_roads_of_the_bar() {
  # A launch from the bar leaves the focus where it was.
  e2e_command 'w;focus.example' || return 1
  e2e_wait_launch 'http://www.focus.example' || return 1
  e2e_wait_text "" || return 1
  e2e_expect_box_focus 'a launch from the bar' || return 1
  bar_click PictureWeb || return 1
  qs_poll 5 e2e_focus_on_bar_edit 2 ||
    e2e_fail "opening the web pane did not give the URL box the focus: $(e2e_focus_summary)" || return 1
  xdotool type --delay 25 -- "zq"
  qs_poll 5 focus_web_box_holds zq ||
    e2e_fail "typing after the web pane opened did not reach the URL box: $(e2e_focus_summary)" || return 1
  xdotool key BackSpace BackSpace
  bar_click PictureWeb || return 1
  e2e_expect_box_focus 'closing the web pane' || return 1

  bar_click PictureZero || return 1
  qs_poll 5 bar_width_narrow || e2e_fail "the round button did not narrow the bar" || return 1
  bar_click PictureZero || return 1
  qs_poll 5 bar_width_wide || e2e_fail "the round button did not widen the bar" || return 1
  e2e_expect_box_focus 'widening the bar by its round button' || return 1

  bar_click PictureHide || return 1
  qs_poll 5 bar_shown_is 0 || e2e_fail "the bar did not go to the tray" || return 1
  wine "$E2E_TOOLS/bartool.exe" tray >"$E2E_WORK/tray.out" 2>/dev/null || e2e_fail "no icon in the tray" || return 1
  local x y
  IFS=, read -r x y <<<"$(tr -d '\r' <"$E2E_WORK/tray.out" | sed -n 's/^centre=//p')"
  xdotool mousemove "$x" "$y" sleep 0.2 mousemove "$((x + 1))" "$y"
  qs_poll 5 bar_shown_is 1 || e2e_fail "touching the tray icon did not bring the bar back" || return 1
  e2e_expect_box_focus 'the bar coming back from the tray'
}

bar_width_narrow() {
  bar_read && [ $((BAR_RIGHT - BAR_LEFT)) -lt 300 ]
}

bar_width_wide() {
  bar_read && [ $((BAR_RIGHT - BAR_LEFT)) -ge 300 ]
}

# Open in the Open pane, then a message answered: each gives the focus back.
focus_roads_of_open_and_messages() {
  open_runs_a_file || return 1
  e2e_expect_box_focus 'Open in the Open pane' || return 1
  e2e_command 'p=C:\nope.exe' || return 1
  qs_poll 15 dialog_read || e2e_fail "no message appeared" || return 1
  dialog_click_button No || return 1
  qs_poll 10 dialog_gone || e2e_fail "the message stayed after \"No\"" || return 1
  e2e_expect_box_focus 'a message answered'
}

e2e_scenario 'the focus stays in the Command box while panes open, switch and close, by every road' \
  focus_roads_of_the_panes
e2e_scenario 'the focus follows the web pane, the round button and the tray' focus_roads_of_the_bar
e2e_scenario 'the focus comes back to the Command box after Open and after a message' \
  focus_roads_of_open_and_messages browse_start
