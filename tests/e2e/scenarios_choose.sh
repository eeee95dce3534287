# shellcheck shell=bash
# The Launch List pane, opened from the bar's "L" button: it starts on
# Program with the first item of every group chosen, either list steps the
# other, Open runs the item and closes the pane, a rename to a listed name is
# refused with its message and the frame keeps the typed text, a remove and
# a clear ask first, and after the exit the list files hold what remains.
# The pane is the borderless window titled "Launch List".

CHOOSE_DATA='Morvane/Morvane Apps/Quillstart'

# Items in every group of a fixed disk's Launch List, the records counting
# them; the programs are the recorder under their names.
# Usage: choose_seed THEME [TOP_TWIPS]
choose_seed() {
  local c data
  c=$(e2e_drive_dir C)
  data="$c/$CHOOSE_DATA"
  e2e_seed_family C
  mkdir -p "$c/Docs"
  printf 'notes\r\n' >"$c/Docs/notes.txt"
  printf 'plan\r\n' >"$c/Docs/plan.txt"
  e2e_seed_program C 'Apps\myPlayer.exe'
  e2e_seed_program C 'Apps\other.exe'
  e2e_seed_program C 'Apps\zed.exe'
  e2e_seed_list "$data/ListFile.Morvane" 'notes=C:\Docs\notes.txt' 'plan=C:\Docs\plan.txt'
  e2e_seed_list "$data/ListFold.Morvane" 'docs=C:\Docs'
  e2e_seed_list "$data/ListProg.Morvane" 'myPlayer=C:\Apps\myPlayer.exe' 'other=C:\Apps\other.exe' \
    'zed=C:\Apps\zed.exe'
  e2e_seed_list "$data/ListMail.Morvane" 'ada=ada@example.org'
  e2e_seed_list "$data/ListWeb.Morvane" 'news=http://news.example/'
  e2e_write_lines "$data/Set.Morvane" 10 57 1500 "${2:-1500}" '"C:\Quillstart"' 1 0 2 8 2 "$1"
  e2e_write_lines "$data/COMData.Morvane" 2 0 0
  cp "$data/ListFile.Morvane" "$E2E_WORK/ListFile.before"
}

choose_start_light() { choose_seed 0 && e2e_start_quillstart; }
choose_start_dark() { choose_seed 3 && e2e_start_quillstart; }

# Reads the pane's children into E2E_CHILDREN; fails when it is not shown.
choose_children() {
  wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title 'Launch List' >"$E2E_WORK/choose.out" 2>/dev/null ||
    return 1
  E2E_CHILDREN=$(tr -d '\r' <"$E2E_WORK/choose.out")
}

choose_shown() { choose_children; }
choose_gone() { ! choose_children; }

choose_open() {
  bar_click PictureMenu2 || return 1
  qs_poll 10 choose_shown || e2e_fail "the Launch List pane did not open"
}

# The n-th shown drop-down of the pane (1 the name list, 2 the path list of
# the panel shown): "COUNT<tab>CHOSEN", then its items.
choose_combo() {
  choose_children || return 1
  awk -F'\t' -v n="$1" '
    /^child=/ { inside = ($1 == "child=ComboBox" && $2 == 1); if (inside) seen++ ; next }
    inside && seen == n && /^combo=/ { sub(/^combo=/, ""); print; next }
    inside && seen == n && /^item=/ { print $2 }' <<<"$E2E_CHILDREN"
}

# True when the n-th shown drop-down holds COUNT items with CHOSEN chosen.
choose_combo_is() {
  [ "$(choose_combo "$1" | head -1)" = "$2"$'\t'"$3" ]
}

choose_label_shows() {
  choose_children && grep -qF -- "$(printf '\t')$1" <<<"$(grep '^child=Static' <<<"$E2E_CHILDREN" | awk -F'\t' '$2 == 1')"
}

choose_click() { e2e_click_child QuillstartBorderless 'Launch List' "$1"; }

# Opens on Program with every group's first item chosen and the counts;
# steps by the name list; Open runs the chosen program and closes the pane.
choose_opens_steps_and_opens() {
  choose_open || return 1
  e2e_screenshot pane
  e2e_expect_box_focus 'opening the Launch List pane' || return 1
  qs_poll 5 choose_combo_is 1 3 0 || e2e_fail "the Program names show \"$(choose_combo 1 | head -1)\", expected 3 items, the first chosen" || return 1
  [ "$(choose_combo 1 | sed -n 2,4p | tr '\n' ' ')" = 'myPlayer other zed ' ] ||
    e2e_fail "the Program names are $(choose_combo 1 | tail -n +2 | tr '\n' ' ')" || return 1
  choose_combo_is 2 3 0 || e2e_fail "the Program paths do not start on the first item" || return 1
  choose_label_shows 'Program Added To Launch List: 3' || e2e_fail "no total line for Program" || return 1
  choose_label_shows 'Showing Program # 1' || e2e_fail "no position line for Program" || return 1
  # Step to the second program by the name list, as a person does: open it,
  # move down one and take it.
  local rect
  rect=$(awk -F'\t' '$1 == "child=ComboBox" && $2 == 1 { print $3; exit }' <<<"$E2E_CHILDREN")
  browse_click_rect "$rect" || return 1
  xdotool key Down Return
  qs_poll 5 choose_combo_is 1 3 1 || e2e_fail "the name list did not move to the second item" || return 1
  qs_poll 5 choose_combo_is 2 3 1 || e2e_fail "the path list did not follow the name list" || return 1
  qs_poll 5 choose_label_shows 'Showing Program # 2' || e2e_fail "the position line did not follow" || return 1
  # And back by the path list.
  rect=$(awk -F'\t' '$1 == "child=ComboBox" && $2 == 1 { n++; if (n == 2) { print $3; exit } }' <<<"$E2E_CHILDREN")
  browse_click_rect "$rect" || return 1
  xdotool key Up Return
  qs_poll 5 choose_combo_is 1 3 0 || e2e_fail "the name list did not follow the path list" || return 1
  choose_click 'Open: myPlayer' || return 1
  e2e_wait_launch 'myPlayer.exe' || return 1
  qs_poll 10 choose_gone || e2e_fail "the pane stayed open after Open" || return 1
  e2e_expect_box_focus 'Open in the Launch List pane'
}

choose_rename_box() {
  choose_children && awk -F'\t' '$1 == "child=Edit" && $2 == 1 { print $4 }' <<<"$E2E_CHILDREN" | grep -qx -- "$1"
}

choose_no_rename_box() {
  choose_children && ! awk -F'\t' '$1 == "child=Edit" && $2 == 1' <<<"$E2E_CHILDREN" | grep -q .
}

# A rename to a listed name shows its message and keeps the frame with the
# text; a new name is taken and then runs by its Command.
choose_rename_refused_then_taken() {
  choose_open || return 1
  choose_click 'Change Launch Name' || return 1
  xdotool type --delay 40 -- zed
  qs_poll 5 choose_rename_box zed || e2e_fail "the rename box does not hold the typed name" || return 1
  xdotool key Return
  qs_poll 10 browse_message_says 'The name you typed is listed name' ||
    e2e_fail "no message refused the listed name" || return 1
  e2e_screenshot refused
  xdotool key Return
  qs_poll 10 choose_rename_box zed || e2e_fail "the frame did not stay open with the typed text" || return 1
  # The question standing, for the eye, then answered No.
  choose_click 'Remove This Program From Launch List' || return 1
  qs_poll 5 choose_label_shows 'Remove "myPlayer" From Launch List?' || e2e_fail "the remove question did not show" || return 1
  e2e_screenshot question-dark
  choose_click 'No' || return 1
  choose_click 'Cancel' || return 1
  qs_poll 5 choose_no_rename_box || e2e_fail "Cancel did not close the rename frame" || return 1
  choose_click 'Change Launch Name' || return 1
  xdotool type --delay 40 -- tunes
  qs_poll 5 choose_rename_box tunes || e2e_fail "the rename box does not hold the new name" || return 1
  xdotool key Return
  qs_poll 5 choose_no_rename_box || e2e_fail "the frame stayed open after a new name" || return 1
  bar_click PictureMenu2 || return 1
  qs_poll 10 choose_gone || e2e_fail "the pane stayed open after its button" || return 1
  e2e_command 'p-tunes' || return 1
  e2e_wait_launch 'myPlayer.exe'
}

# The question before a remove and a clear; after the exit the files hold
# exactly what remains.
choose_remove_and_clear_then_exit() {
  choose_open || return 1
  choose_click 'Remove This Program From Launch List' || return 1
  qs_poll 5 choose_label_shows 'Remove "myPlayer" From Launch List?' || e2e_fail "the remove question did not show" || return 1
  e2e_screenshot question-light
  choose_click 'Yes' || return 1
  qs_poll 5 choose_combo_is 1 2 0 || e2e_fail "the removed program is still listed: $(choose_combo 1 | tr '\n' ' ')" || return 1
  choose_click 'File' || return 1
  qs_poll 5 choose_combo_is 1 2 0 || e2e_fail "the File panel did not show" || return 1
  choose_click 'Delete All File From Launch List' || return 1
  qs_poll 5 choose_label_shows 'File?' || e2e_fail "the clear question did not show" || return 1
  choose_click 'No' || return 1
  qs_poll 5 choose_combo_is 1 2 0 || e2e_fail "No cleared the group" || return 1
  choose_click 'Delete All File From Launch List' || return 1
  choose_click 'Yes' || return 1
  qs_poll 5 choose_combo_is 1 0 -1 || e2e_fail "Yes did not clear the File group" || return 1
  e2e_exit_by_button || return 1
  local data
  data="$(e2e_drive_dir C)/$CHOOSE_DATA"
  e2e_seed_list "$E2E_WORK/ListProg.expected" 'other=C:\Apps\other.exe' 'zed=C:\Apps\zed.exe'
  e2e_same_bytes "$data/ListProg.Morvane" "$E2E_WORK/ListProg.expected" || return 1
  # A group left empty is not written: its file stays, its counter is -1.
  e2e_same_bytes "$data/ListFile.Morvane" "$E2E_WORK/ListFile.before" || return 1
  e2e_write_lines "$E2E_WORK/Set.expected" 10 57 1500 1500 '"C:\Quillstart"' -1 0 1 8 2 0
  e2e_same_bytes "$data/Set.Morvane" "$E2E_WORK/Set.expected"
}

e2e_scenario 'the Launch List pane opens on Program, its lists step each other, and Open runs the item' \
  choose_opens_steps_and_opens choose_start_light
e2e_scenario 'a rename to a listed name is refused and keeps the text; a new name then runs by its Command' \
  choose_rename_refused_then_taken choose_start_dark
e2e_scenario 'a remove and a clear ask first, and after the exit the list files hold what remains' \
  choose_remove_and_clear_then_exit choose_start_light

# From a flash drive: the pane shows the flash side's count, and a program of
# the flash side removed leaves the computer's own list as it was; the flash
# side, now empty, keeps its file with its counter at -1.
choose_flash_side_remove() {
  choose_open || return 1
  qs_poll 5 choose_combo_is 1 2 0 || e2e_fail "the Program names show \"$(choose_combo 1 | head -1)\"" || return 1
  [ "$(choose_combo 1 | sed -n 2,3p | tr '\n' ' ')" = 'homePlayer stickPlayer ' ] ||
    e2e_fail "the Program names are $(choose_combo 1 | tail -n +2 | tr '\n' ' ')" || return 1
  choose_label_shows 'Portable: ' || e2e_fail "no flash-drive count on a flash-drive run" || return 1
  local rect
  rect=$(awk -F'\t' '$1 == "child=ComboBox" && $2 == 1 { print $3; exit }' <<<"$E2E_CHILDREN")
  browse_click_rect "$rect" || return 1
  xdotool key Down Return
  qs_poll 5 choose_combo_is 1 2 1 || e2e_fail "the name list did not move to stickPlayer" || return 1
  choose_click 'Remove This Program From Launch List' || return 1
  qs_poll 5 choose_label_shows 'Remove "stickPlayer" From Launch List?' || e2e_fail "the remove question did not show" || return 1
  e2e_screenshot flash-question
  choose_click 'Yes' || return 1
  qs_poll 5 choose_combo_is 1 1 0 || e2e_fail "stickPlayer is still listed" || return 1
  bar_click PictureMenu2 || return 1
  qs_poll 10 choose_gone || e2e_fail "the pane stayed open" || return 1
  e2e_close_bar || return 1
  local stick shared='Morvane Apps/Quillstart'
  stick=$(e2e_drive_dir E)
  e2e_same_bytes "$stick/Morvane/$shared/ListUSBProg.Morvane" "$E2E_WORK/flash.before/$shared/ListUSBProg.Morvane" || return 1
  e2e_same_bytes "$stick/Morvane/$(e2e_computer_name)/Quillstart/ListProg.Morvane" \
    "$E2E_WORK/flash.before/$(e2e_computer_name)/Quillstart/ListProg.Morvane" || return 1
  e2e_write_lines "$E2E_WORK/USBData.expected" 3 -1 -1 -1
  e2e_same_bytes "$stick/Morvane/$shared/USBData.Morvane" "$E2E_WORK/USBData.expected"
}

e2e_scenario 'from a flash drive, a program of the flash side removed leaves the computer'"'"'s list as it was' \
  choose_flash_side_remove flash_start
