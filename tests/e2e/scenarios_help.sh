# shellcheck shell=bash
# Help: the bar's "?" opens it; each of its thirteen topics shows its heading
# and text, "About" its panel; the arrow keys and Esc reach it; "Exit Help"
# closes it and "?" opens it again where it was dragged to; the online link
# opens the help page and closes it, and so does the Command "a.Help".

HELP_PAGE='http://www.quillstart.example/help/quillstart.html'

# A start that knows this computer, with the bar at the top left and theme
# THEME. Usage: help_seed THEME
help_seed() {
  e2e_seed_family C
  e2e_write_lines "$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/Set.Morvane" 10 57 1500 1500 '""' -1 -1 -1 8 2 "$1"
}

help_start_light() { help_seed 0 && e2e_start_quillstart; }
help_start_dark() { help_seed 3 && e2e_start_quillstart; }
help_start_150() {
  DPI_CHANGED=1
  dpi_set 144 || e2e_fail "could not set LogPixels to 144" || return 1
  help_seed 0 && e2e_start_quillstart
}

help_open() {
  bar_click PictureHelp || return 1
  qs_poll 10 help_read || e2e_fail "Help did not show after the bar's \"?\""
}

help_close_by_exit() {
  e2e_click_child QuillstartBorderless Help 'Exit Help' Static || return 1
  qs_poll 10 help_gone || e2e_fail "Help stayed on screen after \"Exit Help\""
}

# How many shown labels read exactly TEXT.
help_labels_reading() {
  awk -F'\t' -v text="$1" '$1 == "child=Static" && $2 == 1 && $4 == text' <<<"$E2E_CHILDREN" | grep -c .
}

# The text of the shown text box, its line ends written as \r\n; empty when
# no text box shows.
help_text() {
  awk -F'\t' '$1 == "child=Edit" && $2 == 1 { print $4 }' <<<"$E2E_CHILDREN"
}

# True when the topic CAPTION stands as the heading (its caption shows twice,
# in the list and above the text) and the text begins with FIRST.
help_topic_shows() {
  help_read || return 1
  [ "$(help_labels_reading "$1")" -eq 2 ] || return 1
  case "$(help_text)" in "$2"*) return 0 ;; esac
  return 1
}

# Clicks a topic and waits for its heading and text. Usage: help_topic CAPTION FIRST
help_topic() {
  e2e_click_child QuillstartBorderless Help "$1" Static || return 1
  qs_poll 5 help_topic_shows "$1" "$2" ||
    e2e_fail "the topic \"$1\" shows heading x$(help_labels_reading "$1") and text \"$(help_text | cut -c1-60)\""
}

help_about_shows() {
  help_read && [ -z "$(help_text)" ] && [ "$(help_labels_reading 'This Is')" -eq 1 ] &&
    [ "$(help_labels_reading 'How About That !!')" -eq 1 ] && [ "$(help_labels_reading 'Quillstart')" -eq 1 ] &&
    [ "$(help_labels_reading 'Fresh! New! 4.2019')" -eq 1 ]
}

help_about() {
  e2e_click_child QuillstartBorderless Help About Static || return 1
  qs_poll 5 help_about_shows || e2e_fail "About shows text \"$(help_text | cut -c1-60)\" or lacks its panel"
}

# Every topic in turn, read from the real controls: the heading and the
# first words of its text.
help_walk_topics() {
  help_topic Introduction 'Quillstart is a program launcher. but it can also launch web URLs' || return 1
  help_topic 'Install,  Upgrade && Uninstall' 'Install:\r\nQuillstart is stand alone. No installation required.' || return 1
  help_topic Interface 'The main window of Quillstart is very simple.' || return 1
  help_topic 'Web URL' 'To add web URL in Launch List:' || return 1
  help_topic Program 'Add an Application (Program) in the Launch List:' || return 1
  help_topic 'All Item' 'Add App|File|Folder|Email|Web URL to Launch List:' || return 1
  help_topic 'View List' 'To view the Launch List click the "L" button' || return 1
  help_topic 'Type A Command' 'A Command is the total of a Command Code and a Launch Name.' || return 1
  help_topic 'Code And Command' 'Characters that can be used in a Command Code as 1st Char:' || return 1
  help_topic 'More Commands For URL' 'A web URL added to the Launch List runs by the Command "w-"' || return 1
  help_topic 'Quick Launcher' 'QuickLauncher helps to keep 20 items of a group' || return 1
  help_topic 'Things To Remember' '#1. The program is very easy. ' || return 1
  help_about
}

# Saves the Help window alone. Usage: help_shot LABEL
help_shot() {
  help_read || return 1
  e2e_screenshot_area "$HELP_LEFT" "$HELP_TOP" "$HELP_RIGHT" "$HELP_BOTTOM" "$1"
}

# Drags Help by its bare left edge by (DX, DY) pixels, with the small steps a
# hand makes; the pointer then moves on the surface a moment, which fixes the
# place for the run.
help_drag_by() {
  local x=$((HELP_LEFT + 6)) y=$((HELP_TOP + 200))
  xdotool mousemove "$x" "$y" mousedown 1 sleep 0.2 mousemove "$((x + 4))" "$((y + 3))" sleep 0.2 \
    mousemove "$((x + $1 / 2))" "$((y + $2 / 2))" sleep 0.2 mousemove "$((x + $1))" "$((y + $2))" sleep 0.2 mouseup 1
  xdotool sleep 0.3 mousemove_relative 2 0 sleep 0.3 mousemove_relative -- -2 0
}

help_at() { help_read && [ "$HELP_LEFT" -eq "$1" ] && [ "$HELP_TOP" -eq "$2" ]; }

help_topics_drag_and_links() {
  help_open || return 1
  help_shot start-light
  # The arrows step through the topics: Help holds the keyboard once shown.
  xdotool key Down
  qs_poll 5 help_topic_shows Introduction 'Quillstart is a program launcher.' ||
    e2e_fail "Down in Help did not choose the first topic" || return 1
  xdotool key Down
  qs_poll 5 help_topic_shows 'Install,  Upgrade && Uninstall' 'Install:' ||
    e2e_fail "a second Down did not choose the second topic" || return 1
  help_walk_topics || return 1
  help_shot about-light
  help_topic Introduction 'Quillstart is a program launcher.' || return 1
  help_shot text-light

  help_read || return 1
  local left=$HELP_LEFT top=$HELP_TOP
  help_drag_by 120 -90
  qs_poll 5 help_at "$((left + 120))" "$((top - 90))" ||
    e2e_fail "the drag left Help at $HELP_LEFT,$HELP_TOP, expected $((left + 120)),$((top - 90))" || return 1
  left=$HELP_LEFT
  top=$HELP_TOP
  help_close_by_exit || return 1
  help_open || return 1
  qs_poll 5 help_at "$left" "$top" || e2e_fail "Help opened again at $HELP_LEFT,$HELP_TOP, not at $left,$top" || return 1
  [ -z "$(help_text)" ] && [ "$(help_labels_reading 'Please Select A Topic')" -eq 1 ] ||
    e2e_fail "Help opened again on a topic, not on its start panel" || return 1

  xdotool key Escape
  qs_poll 10 help_gone || e2e_fail "Esc did not close Help" || return 1

  help_open || return 1
  e2e_click_child QuillstartBorderless Help a.Help Static || return 1
  e2e_wait_launch "$HELP_PAGE" || return 1
  qs_poll 10 help_gone || e2e_fail "Help stayed open after its online link" || return 1

  help_open || return 1
  e2e_command a.Help help-command || return 1
  qs_poll 10 help_gone || e2e_fail "the Command a.Help left Help open" || return 1
  qs_poll 10 help_two_page_launches || e2e_fail "the Command a.Help did not open the help page: $(e2e_log_summary)" ||
    return 1
  help_open
}

help_two_page_launches() { [ "$(grep -cF -- "$HELP_PAGE" "$(e2e_launch_log)")" -eq 2 ]; }

e2e_scenario 'Help opens from "?", shows all thirteen topics, walks them by arrow, keeps its dragged place, closes by Exit Help, Esc, its online link and a.Help' \
  help_topics_drag_and_links help_start_light

# A text topic and About for the eye, in the dark theme and at 150 %.
help_shots() {
  help_open || return 1
  help_topic Interface 'The main window of Quillstart is very simple.' || return 1
  help_shot "text-$1"
  help_about || return 1
  help_shot "about-$1"
}

help_shots_dark() { help_shots dark; }
help_shots_150() { help_shots 150; }

e2e_scenario 'Help in the dark theme shows a text topic and About' help_shots_dark help_start_dark
e2e_scenario 'Help at 150 % shows a text topic and About' help_shots_150 help_start_150
