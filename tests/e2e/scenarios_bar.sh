# shellcheck shell=bash
# The bar itself: its buttons' tooltips, hover, the minimised bar, the web
# pane and an item added there that lasts an exit, the tray, the drag with
# the work-area clamp, and a pane opening above a bar near the bottom.

BAR_TIP=""
BAR_LEFT=0
BAR_TOP=0
BAR_RIGHT=0
BAR_BOTTOM=0
BAR_VISIBLE=""
BAR_X=0
BAR_Y=0
BAR_PANE_TOP=0
BAR_PANE_BOTTOM=0

# Reads the bar's window with the bar tool into BAR_LEFT, BAR_TOP, BAR_RIGHT,
# BAR_BOTTOM and BAR_VISIBLE.
bar_read() {
  wine "$E2E_TOOLS/bartool.exe" bar >"$E2E_WORK/bartool.out" 2>/dev/null || return 1
  local out
  out=$(tr -d '\r' <"$E2E_WORK/bartool.out")
  IFS=, read -r BAR_LEFT BAR_TOP BAR_RIGHT BAR_BOTTOM <<<"$(sed -n 's/^window=//p' <<<"$out")"
  BAR_VISIBLE=$(sed -n 's/^visible=//p' <<<"$out")
  [ -n "$BAR_LEFT" ]
}

bar_width_is() {
  bar_read && [ $((BAR_RIGHT - BAR_LEFT)) -eq "$1" ]
}

bar_shown_is() {
  bar_read && [ "$BAR_VISIBLE" = "$1" ]
}

bar_tip_is() {
  wine "$E2E_TOOLS/bartool.exe" tip >"$E2E_WORK/tip.out" 2>/dev/null || return 1
  BAR_TIP=$(tr -d '\r' <"$E2E_WORK/tip.out" | sed -n 's/^tip=//p')
  [ "$BAR_TIP" = "$1" ]
}

# The tip of one button: the pointer comes from the Command box, as a hand's
# would, and rests on the button until the tip shows.
bar_expect_tip() {
  local name=$1 tip=$2
  bar_centre TextMain || return 1
  xdotool mousemove "$BAR_X" "$BAR_Y"
  bar_centre "$name" || return 1
  # A hand arrives in several small moves, not in one jump.
  xdotool mousemove "$((BAR_X - 2))" "$BAR_Y" sleep 0.1 mousemove "$((BAR_X - 1))" "$BAR_Y" sleep 0.1 \
    mousemove "$BAR_X" "$BAR_Y"
  qs_poll 6 bar_tip_is "$tip" || e2e_fail "$name shows the tip \"$BAR_TIP\", expected \"$tip\""
}

# The QuickLauncher's button is disabled over an empty Launch List, and a
# disabled button shows no tip: one web item is there from the start.
bar_start_with_a_web_item() {
  local shared
  shared="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart"
  e2e_seed_family C
  e2e_write_lines "$shared/COMData.Morvane" 2 -1 0
  e2e_seed_list "$shared/ListWeb.Morvane" 'news=http://news.example'
  e2e_start_quillstart
}

bar_tooltips() {
  bar_expect_tip PictureZero 'Minimize Window On Screen' || return 1
  bar_expect_tip PictureMenu0 'Add Items To Launch List' || return 1
  bar_expect_tip PictureMenu1 'Browse To Open File | Run Program' || return 1
  bar_expect_tip PictureMenu2 'Show|HIde   Launch List' || return 1
  bar_expect_tip PictureMenu3 'Show|Hide   Command Code|Predefined Launch Names' || return 1
  bar_expect_tip PictureMenu4 'Show|Hide    Preferences Window' || return 1
  bar_expect_tip PictureHelp 'Show|Hide Help' || return 1
  bar_expect_tip PictureWeb 'Show|Hide   Add Web URL Window' || return 1
  bar_expect_tip PictureShowQuick 'Show|Hide QuickLauncher' || return 1
  bar_expect_tip PictureHide 'Hide Window In Tray' || return 1
  bar_expect_tip PictureExit 'Exit'
}

# A crop of the screen round a bar control, as text pixels to compare.
bar_crop() {
  bar_centre "$1" || return 1
  import -window root -crop "16x16+$((BAR_X - 8))+$((BAR_Y - 8))" "$E2E_WORK/$2.png" >/dev/null 2>&1
}

bar_crops_differ() {
  bar_crop PictureExit over || return 1
  local diff
  diff=$(compare -metric AE "$E2E_WORK/rest.png" "$E2E_WORK/over.png" null: 2>&1)
  [ "${diff%% *}" != "0" ]
}

bar_hover_changes_the_picture() {
  bar_centre TextMain || return 1
  xdotool mousemove "$BAR_X" "$BAR_Y"
  sleep 0.3
  bar_crop PictureExit rest || e2e_fail "no screenshot" || return 1
  bar_centre PictureExit || return 1
  xdotool mousemove "$BAR_X" "$BAR_Y"
  qs_poll 5 bar_crops_differ || e2e_fail "the exit button looks the same under the pointer"
}

bar_minimise_and_back() {
  bar_click PictureZero || return 1
  qs_poll 5 bar_width_is 177 || e2e_fail "the minimised bar is $((BAR_RIGHT - BAR_LEFT)) pixels wide, expected 177" || return 1
  e2e_screenshot minimised
  bar_click PictureZero || return 1
  qs_poll 5 bar_width_is 424 || e2e_fail "the widened bar is $((BAR_RIGHT - BAR_LEFT)) pixels wide, expected 424"
}

# The bar's edit boxes as the children tool reads them.
bar_box_holds() {
  wine "$E2E_TOOLS/children.exe" QuillstartBorderless >"$E2E_WORK/bar-children.out" 2>/dev/null || return 1
  tr -d '\r' <"$E2E_WORK/bar-children.out" | awk -F'\t' -v want="$1" '$1 == "child=Edit" && $4 == want { found = 1 } END { exit !found }'
}

BAR_WEB_LIST="Morvane/Morvane Apps/Quillstart/ListWeb.Morvane"

bar_web_list_has() {
  [ -f "$WINEPREFIX/drive_c/$BAR_WEB_LIST" ] && grep -qF '"news","http://news.example/"' "$WINEPREFIX/drive_c/$BAR_WEB_LIST"
}

bar_web_item_lasts_an_exit() {
  bar_click PictureWeb || return 1
  qs_poll 5 bar_width_is 822 || e2e_fail "the bar with the web pane is $((BAR_RIGHT - BAR_LEFT)) pixels wide" || return 1
  # The URL box has the focus: typing lands there at once.
  xdotool type --delay 25 -- "http://news.example/"
  qs_poll 5 bar_box_holds "http://news.example/" || e2e_fail "the URL typed did not land in the URL box" || return 1
  bar_click TextWebName || return 1
  xdotool type --delay 25 -- "news"
  qs_poll 5 bar_box_holds "news" || e2e_fail "the Launch Name did not land in its box" || return 1
  e2e_screenshot web-pane
  xdotool key Return
  qs_poll 5 bar_box_holds_no_url || e2e_fail "the web boxes were not emptied by the add" || return 1
  e2e_command "w-news" || return 1
  e2e_wait_launch "http://news.example/" || return 1
  bar_click PictureExit || return 1
  qs_poll 15 e2e_bar_gone || e2e_fail "the exit button did not end the program" || return 1
  qs_poll 5 bar_web_list_has || e2e_fail "ListWeb.Morvane holds no news item" || return 1
  rm -f "$(e2e_launch_log)"
  e2e_start_quillstart || return 1
  e2e_command "w-news" || return 1
  e2e_wait_launch "http://news.example/"
}

bar_box_holds_no_url() {
  ! bar_box_holds "http://news.example/"
}

bar_tray_and_back() {
  bar_click PictureHide || return 1
  qs_poll 5 bar_shown_is 0 || e2e_fail "the bar did not go to the tray" || return 1
  wine "$E2E_TOOLS/bartool.exe" tray >"$E2E_WORK/tray.out" 2>/dev/null || e2e_fail "no icon in the tray" || return 1
  local x y
  IFS=, read -r x y <<<"$(tr -d '\r' <"$E2E_WORK/tray.out" | sed -n 's/^centre=//p')"
  e2e_screenshot in-tray
  xdotool mousemove "$((x - 2))" "$y" mousemove "$x" "$y"
  qs_poll 5 bar_shown_is 1 || e2e_fail "touching the tray icon did not bring the bar back" || return 1
  wine "$E2E_TOOLS/bartool.exe" tray >/dev/null 2>&1 && e2e_fail "the tray icon stayed after the bar came back" && return 1
  e2e_enter_text "w;tray.example" || return 1
  xdotool key Return
  e2e_wait_launch "http://www.tray.example"
}

# Dragged from the gap between the first two strips to the screen's left
# edge and 100 pixels down: the bar follows the pointer down, and the end of
# the drag puts its left edge, which went past the screen's, back at 0.
bar_drag_and_clamp() {
  bar_read || return 1
  local top=$BAR_TOP
  bar_centre Gap || return 1
  xdotool mousemove "$BAR_X" "$BAR_Y" mousedown 1 sleep 0.2 mousemove "$((BAR_X - 4))" "$((BAR_Y + 3))" sleep 0.2 \
    mousemove "$((BAR_X - 30))" "$((BAR_Y + 50))" sleep 0.2 mousemove 5 "$((BAR_Y + 100))" sleep 0.2 mouseup 1
  qs_poll 5 bar_top_is_past "$((top + 90))" || e2e_fail "the drag did not move the bar (top $BAR_TOP)" || return 1
  qs_poll 5 bar_left_is 0 || e2e_fail "the bar was left at $BAR_LEFT after a drag past the left edge"
}

bar_top_is_past() {
  bar_read && [ "$BAR_TOP" -ge "$1" ]
}

bar_left_is() {
  bar_read && [ "$BAR_LEFT" -eq "$1" ]
}

# frmBrowse found as a shown dialog window of the program, its top edge.
bar_pane_top() {
  wine "$E2E_TOOLS/children.exe" >"$E2E_WORK/pane.out" 2>/dev/null || return 1
  local rect
  rect=$(tr -d '\r' <"$E2E_WORK/pane.out" | sed -n 's/^window=//p')
  IFS=, read -r _ BAR_PANE_TOP _ BAR_PANE_BOTTOM <<<"$rect"
  grep -q '^title=Add Item' <(tr -d '\r' <"$E2E_WORK/pane.out")
}

# The bar starts where the last run left it: near the bottom of the screen
# (Top 20,700 twips, 1,380 pixels, of 1,440).
bar_start_near_the_bottom() {
  e2e_seed_family C
  e2e_write_lines "$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/Set.Morvane" 10 57 1500 20700 '""' -1 -1 -1 8 2 0
  e2e_start_quillstart
}

bar_pane_opens_above_near_the_bottom() {
  qs_poll 5 bar_near_bottom || e2e_fail "the bar did not start near the bottom (top $BAR_TOP)" || return 1
  bar_click PictureMenu0 || return 1
  qs_poll 10 bar_pane_top || e2e_fail "the Add Item pane did not open" || return 1
  bar_read || return 1
  e2e_screenshot pane-above
  [ "$BAR_PANE_BOTTOM" -le "$BAR_TOP" ] || e2e_fail "the pane (top $BAR_PANE_TOP, bottom $BAR_PANE_BOTTOM) is not above the bar (top $BAR_TOP)"
}

bar_near_bottom() {
  bar_read && [ "$BAR_TOP" -gt 1000 ]
}

e2e_scenario "each bar button's tooltip reads as the program's own" bar_tooltips bar_start_with_a_web_item
e2e_scenario 'the pointer over a bar button changes its picture' bar_hover_changes_the_picture
e2e_scenario 'the round button minimises the bar on screen and widens it again' bar_minimise_and_back
e2e_scenario 'a web item added in the web pane launches by w- and lasts an exit by the exit button' bar_web_item_lasts_an_exit
e2e_scenario 'the bar hides in the tray and comes back when the pointer touches the icon' bar_tray_and_back
e2e_scenario 'the bar drags by its surface and stays in the work area' bar_drag_and_clamp
e2e_scenario 'a pane opens above a bar near the bottom of the screen' bar_pane_opens_above_near_the_bottom \
  bar_start_near_the_bottom
