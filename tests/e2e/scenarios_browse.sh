# shellcheck shell=bash
# The Add Item and Open pane, opened from the bar's first two menu buttons:
# a Program added by choosing its file and typing a name, then run by "p-"
# and saved at exit; the refusals with their dialogs; Open runs a file.
# The pane is a QuillstartDialog window titled "Add Item" or "Open"; a
# message shown over it is one titled "Quillstart".

# Programs in the program's own folder, where the pane's boxes start.
browse_start() {
  e2e_seed_program C 'Quillstart\myTool.exe'
  e2e_seed_program C 'Quillstart\other.exe'
  printf 'echo\r\n' >"$(e2e_drive_dir C)/Quillstart/run.bat"
  printf 'notes\r\n' >"$(e2e_drive_dir C)/Quillstart/notes.txt"
  e2e_start_known
}

# Reads the children of a top-level window into E2E_CHILDREN.
# Usage: browse_children CLASS
browse_children() {
  wine "$E2E_TOOLS/children.exe" "$1" >"$E2E_WORK/children.out" 2>/dev/null || return 1
  E2E_CHILDREN=$(tr -d '\r' <"$E2E_WORK/children.out")
}

# Clicks the centre of a rectangle "L,T,R,B" (screen pixels), or a point
# `down` pixels below its top.
browse_click_rect() {
  local l t r b
  IFS=, read -r l t r b <<<"$1"
  local y=$(((t + b) / 2))
  [ -n "${2:-}" ] && y=$((t + $2))
  xdotool mousemove $(((l + r) / 2)) "$y" click 1
}

# Opens the pane: mode 0 Add Item, 1 Open.
browse_open() {
  local title
  bar_click "PictureMenu$1" || return 1
  title=$([ "$1" = 0 ] && echo 'Add Item' || echo 'Open')
  qs_poll 10 browse_pane_is "$title" || e2e_fail "the $title pane did not open"
}

browse_pane_is() {
  browse_children QuillstartDialog && grep -qx "title=$1" <<<"$E2E_CHILDREN"
}

# The rectangle of the pane's visible child of a class, by its text or, with
# an empty text, the n-th one from the top (1 first).
browse_child_rect() {
  # The class and text come through the environment: awk would read the
  # backslashes of a path given with -v as escapes.
  cls="child=$1" text="$2" awk -F'\t' 'BEGIN { cls = ENVIRON["cls"]; text = ENVIRON["text"] }
    $1 == cls && $2 == 1 && (text == "" || $4 == text) { print $3 }' <<<"$E2E_CHILDREN" |
    sort -t, -k2,2n | sed -n "${3:-1}p"
}

# Clicks the n-th file of the file box (0 first): the second list box from
# the top, rows as tall as a line of the dialog's font.
browse_click_file() {
  browse_children QuillstartDialog || return 1
  local rect row_height=$((12 * ${QS_DPI:-96} / 96))
  rect=$(browse_child_rect ListBox '' 2)
  [ -n "$rect" ] || e2e_fail "the pane shows no file box" || return 1
  browse_click_rect "$rect" $((2 + row_height * $1 + row_height / 2))
}

browse_click_option() {
  browse_children QuillstartDialog || return 1
  browse_click_rect "$(browse_child_rect Button "$1")"
}

# Types a Launch Name into the name box (the lower of the two text boxes)
# and presses Enter.
browse_name_and_enter() {
  browse_children QuillstartDialog || return 1
  browse_click_rect "$(browse_child_rect Edit '' 2)"
  xdotool type --delay 40 -- "$1"
  xdotool key Return
}

browse_path_is() {
  browse_children QuillstartDialog && [ "$(browse_child_rect Edit "$1")" != "" ]
}

# A message over the pane whose text holds the given words.
browse_message_says() {
  browse_children QuillstartDialog && grep -qx 'title=Quillstart' <<<"$E2E_CHILDREN" &&
    grep -F -- "$1" <<<"$E2E_CHILDREN" >/dev/null
}

browse_expect_message() {
  qs_poll 10 browse_message_says "$1" || e2e_fail "no message saying \"$1\" appeared" || return 1
  e2e_screenshot "message"
  xdotool key Return
  qs_poll 10 browse_pane_is "$2" || e2e_fail "the pane did not come back after the message"
}

# Chooses myTool.exe, names it "tool", adds it, runs it by "p-tool" and finds
# it in ListProg.Morvane after the exit.
add_program_runs_and_is_saved() {
  browse_open 0 || return 1
  e2e_screenshot add-item
  browse_click_file 0 || return 1
  qs_poll 10 browse_path_is 'C:\Quillstart\myTool.exe' || e2e_fail "choosing the file did not fill its path" || return 1
  browse_name_and_enter tool || return 1
  qs_poll 10 browse_path_is '' || e2e_fail "the boxes were not emptied after the add" || return 1
  e2e_screenshot added
  e2e_command 'p-tool' || return 1
  e2e_wait_launch 'myTool.exe' || return 1
  e2e_close_bar || return 1
  local list
  list="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/ListProg.Morvane"
  grep -qF '"tool","C:\Quillstart\myTool.exe"' "$list" 2>/dev/null ||
    e2e_fail "ListProg.Morvane does not hold the added program: $(tr '\r\n' '||' <"$list" 2>/dev/null)"
}

# An unsafe extension, a duplicate path and a duplicate name each show their
# dialog and add nothing.
refusals_show_their_dialogs() {
  browse_open 0 || return 1
  browse_click_option File || return 1
  browse_click_file 4 || return 1
  qs_poll 10 browse_path_is 'C:\Quillstart\run.bat' || e2e_fail "choosing run.bat did not fill its path" || return 1
  browse_name_and_enter runner || return 1
  browse_expect_message "can't add to list files" 'Add Item' || return 1
  browse_click_option Program || return 1
  browse_click_file 0 || return 1
  browse_name_and_enter tool || return 1
  qs_poll 10 browse_path_is '' || e2e_fail "the first add did not go through" || return 1
  browse_click_file 0 || return 1
  browse_name_and_enter again || return 1
  browse_expect_message 'Selected item has already been included in the List' 'Add Item' || return 1
  browse_click_file 1 || return 1
  browse_name_and_enter TOOL || return 1
  browse_expect_message 'The name you typed is listed name' 'Add Item'
}

# The row on screen of the folder box (the topmost list box) that shows the
# folder of the given name, without its indent and compared without case:
# its index less the index of the item at the box's top. Nothing when the
# folder is not listed.
browse_folder_row() {
  want="$1" awk -F'\t' 'BEGIN { want = tolower(ENVIRON["want"]) }
    $1 ~ /^child=/ { list = ($1 == "child=ListBox" && $2 == 1); if (list) { split($3, r, ","); top = r[2] + 0; n++ } }
    $1 ~ /^first=/ && list { first = substr($1, 7) + 0 }
    $1 ~ /^item=/ && list { name = $2; gsub(/^ +| +$/, "", name)
      if (tolower(name) == want) { row[n] = substr($1, 6) - first; tops[n] = top } }
    END { best = ""; for (i in row) if (best == "" || tops[i] < tops[best]) best = i; if (best != "") print row[best] }' \
    <<<"$E2E_CHILDREN"
}

# Double-clicks the folder of the folder box with the given name; a folder
# listed below the box's last row is first scrolled into view from the
# keyboard (End, as the Windows folder is last of the root's).
browse_open_folder() {
  local row rect row_height=$((12 * ${QS_DPI:-96} / 96)) rows l t r b
  browse_children QuillstartDialog || return 1
  row=$(browse_folder_row "$1")
  [ -n "$row" ] || e2e_fail "the folder box shows no folder $1" || return 1
  rect=$(browse_child_rect ListBox '' 1)
  IFS=, read -r l t r b <<<"$rect"
  rows=$(((b - t - 4) / row_height))
  if [ "$row" -ge "$rows" ]; then
    xdotool mousemove $(((l + r) / 2)) $((t + 2 + row_height / 2)) click 1
    xdotool key End
    browse_children QuillstartDialog || return 1
    row=$(browse_folder_row "$1")
  fi
  rect=$(browse_child_rect ListBox '' 1)
  IFS=, read -r l t r b <<<"$rect"
  xdotool mousemove $(((l + r) / 2)) $((t + 2 + row_height * row + row_height / 2)) click --repeat 2 --delay 80 1
}

browse_folder_listed() {
  browse_children QuillstartDialog && [ -n "$(browse_folder_row "$1")" ]
}

browse_no_message() {
  ! browse_message_says "$1"
}

# Walking the folder box into the Windows folder is refused with its message
# once; a second try bounces back without a word; the box stays where it was.
system_folder_bounces_back() {
  browse_open 0 || return 1
  browse_open_folder 'C:\' || return 1
  qs_poll 10 browse_folder_listed windows || e2e_fail "the folder box did not open C:\\" || return 1
  browse_open_folder windows || return 1
  browse_expect_message 'System Folder or any File/Folder in it can not be opened' 'Add Item' || return 1
  qs_poll 10 browse_folder_listed windows || e2e_fail "the folder box did not come back to C:\\" || return 1
  browse_open_folder windows || return 1
  # The second refusal is silent: the pane stays the only dialog and the
  # box stays on C:\ for as long as a message would take to show.
  ! qs_poll 3 browse_message_says 'System Folder' || e2e_fail "the second try showed the message again" || return 1
  browse_folder_listed windows || e2e_fail "the second try left C:\\"
}

# Open lists every file; choosing notes.txt and the Open button opens it.
open_runs_a_file() {
  browse_open 1 || return 1
  e2e_screenshot open
  browse_click_file 1 || return 1
  e2e_screenshot chosen
  browse_children QuillstartDialog || return 1
  # The pane's shown pictures of some size, from the top: Close, then Open.
  browse_click_rect "$(awk -F'\t' '$1 == "child=QuillstartPicture" && $2 == 1 {
      split($3, r, ","); if (r[3] > r[1]) print $3 }' <<<"$E2E_CHILDREN" | sort -t, -k2,2n | sed -n 2p)"
  e2e_wait_launch 'notes.txt' || return 1
  qs_poll 10 browse_pane_gone || e2e_fail "the pane stayed open after Open"
}

browse_pane_gone() {
  ! browse_pane_is Open
}

e2e_scenario 'a Program chosen in the Add Item pane and named runs by p- and is saved at exit' \
  add_program_runs_and_is_saved browse_start
e2e_scenario 'an unsafe extension, a listed path and a listed name are refused with their dialogs' \
  refusals_show_their_dialogs browse_start
e2e_scenario 'the Open pane runs the chosen file' open_runs_a_file browse_start
e2e_scenario 'walking into the Windows folder is refused once with its message, then silently' \
  system_folder_bounces_back browse_start
