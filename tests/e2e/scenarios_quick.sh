# shellcheck shell=bash
# The QuickLauncher: shown from the bar's button beside the bar without
# taking the keyboard from the Command box, it launches an item at one click
# and its own button hides it through the bar.

quick_start_with_a_web_item() {
  local shared
  shared="$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart"
  e2e_seed_family C
  e2e_write_lines "$shared/COMData.Morvane" 2 -1 0
  e2e_seed_list "$shared/ListWeb.Morvane" 'news=http://news.example/'
  e2e_start_quillstart
}

quick_launches_an_item_at_one_click() {
  bar_click PictureShowQuick || return 1
  e2e_expect_box_focus 'showing the QuickLauncher' || return 1
  e2e_click_child QuillstartBorderless QuickLaunch 'Show Buttons Of Web URL List' || return 1
  e2e_click_child QuillstartBorderless QuickLaunch news || return 1
  e2e_wait_launch "http://news.example/" || return 1
  e2e_screenshot quick-launched
  e2e_click_child QuillstartBorderless QuickLaunch 'Hide QuickLauncher' || return 1
  qs_poll 5 quick_hidden || e2e_fail "the QuickLauncher stayed on screen after its hide button" || return 1
  e2e_expect_box_focus 'hiding the QuickLauncher by its own button'
}

quick_hidden() {
  ! wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title QuickLaunch >/dev/null 2>&1
}

e2e_scenario 'the QuickLauncher launches an item at one click and typing stays in the Command box' \
  quick_launches_an_item_at_one_click quick_start_with_a_web_item

# Forty-five programs in the Program list, the QuickLauncher's preferred
# group, and the bar near the bottom of the screen (Top 20,700 twips), so the
# QuickLauncher opens above it. Usage: quick_seed_45 THEME [TOP_TWIPS]
quick_seed_45() {
  local c data i names=()
  c=$(e2e_drive_dir C)
  data="$c/Morvane/Morvane Apps/Quillstart"
  e2e_seed_family C
  mkdir -p "$c/Apps"
  for i in $(seq -w 1 45); do
    ln -f "$E2E_TOOLS/recorder.exe" "$c/Apps/Item$i.exe" 2>/dev/null || cp "$E2E_TOOLS/recorder.exe" "$c/Apps/Item$i.exe"
    names+=("Item$i=C:\\Apps\\Item$i.exe")
  done
  e2e_seed_list "$data/ListProg.Morvane" "${names[@]}"
  e2e_write_lines "$data/Set.Morvane" 10 57 1500 "${2:-20700}" '"C:\Quillstart"' -1 -1 44 8 2 "$1"
}

quick_start_45_light() { quick_seed_45 0 && e2e_start_quillstart; }
quick_start_45_dark() { quick_seed_45 3 && e2e_start_quillstart; }

quick_children() {
  wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title QuickLaunch >"$E2E_WORK/quick.out" 2>/dev/null ||
    return 1
  E2E_CHILDREN=$(tr -d '\r' <"$E2E_WORK/quick.out")
}

quick_shows_label() {
  quick_children && awk -F'\t' '$1 == "child=Static" && $2 == 1 { print $4 }' <<<"$E2E_CHILDREN" | grep -qx -- "$1"
}

# The names of the item buttons shown, one line.
quick_items_shown() {
  awk -F'\t' '$1 == "child=QuillstartPicture" && $2 == 1 && $4 ~ /^Item[0-9]+$/ { print $4 }' <<<"$E2E_CHILDREN" |
    sort | tr '\n' ' '
}

# Waits for a page: the showing label and exactly the items FIRST to LAST.
# Usage: quick_expect_page FIRST LAST
quick_page_is() {
  local expected
  expected=$(for i in $(seq -w "$1" "$2"); do printf 'Item%s ' "$i"; done)
  quick_shows_label "Showing: $((10#$1))-$((10#$2))" && [ "$(quick_items_shown)" = "$expected" ]
}

quick_expect_page() {
  qs_poll 5 quick_page_is "$1" "$2" ||
    e2e_fail "the page is not $1-$2: $(awk -F'\t' '$1 == "child=Static" && $2 == 1 { print $4 }' <<<"$E2E_CHILDREN" | tr '\n' '|') items $(quick_items_shown)"
}

quick_window() {
  quick_children || return 1
  IFS=, read -r QUICK_LEFT QUICK_TOP QUICK_RIGHT QUICK_BOTTOM <<<"$(sed -n 's/^window=//p' <<<"$E2E_CHILDREN")"
  [ -n "$QUICK_BOTTOM" ]
}

quick_top_is() { quick_window && [ "$QUICK_TOP" -eq "$1" ]; }

quick_left_is() { quick_window && [ "$QUICK_LEFT" -eq "$1" ]; }

quick_click() { e2e_click_child QuillstartBorderless QuickLaunch "$1"; }

# A group of 45 pages 1-20, 21-40, 41-45 and back to a full page; an item
# click launches it and hides its button; the QuickLauncher stands above a
# bar near the bottom, and its height toggle moves it to the screen's top.
quick_pages_launches_and_moves() {
  bar_click PictureShowQuick || return 1
  quick_expect_page 01 20 || return 1
  e2e_screenshot full-page-light
  e2e_expect_box_focus 'showing the QuickLauncher' || return 1
  bar_read || return 1
  quick_window || return 1
  [ "$QUICK_BOTTOM" -le "$BAR_TOP" ] || e2e_fail "the QuickLauncher (bottom $QUICK_BOTTOM) is not above the bar (top $BAR_TOP)" || return 1
  quick_click 'Program List Go Frorward' || return 1
  quick_expect_page 21 40 || return 1
  quick_click 'Program List Go Frorward' || return 1
  quick_expect_page 41 45 || return 1
  quick_children || return 1
  [ "$(awk -F'\t' '$1 == "child=QuillstartPicture" && $2 == 1 && $4 == "Program List Go Frorward"' <<<"$E2E_CHILDREN")" = "" ] ||
    e2e_fail "the last page still shows the Forward arrow" || return 1
  quick_click 'Program List Go Back' || return 1
  quick_expect_page 21 40 || return 1
  quick_click Item25 || return 1
  e2e_wait_launch 'Item25.exe' || return 1
  qs_poll 5 quick_item_hidden Item25 || e2e_fail "the launched item's button is still shown" || return 1
  quick_click 'Show|Hide QuickLauncher Bottom Part' || return 1
  qs_poll 5 quick_top_is 0 || e2e_fail "the height toggle above the bar left the QuickLauncher at $QUICK_TOP" || return 1
  e2e_screenshot moved-to-top
  bar_click PictureShowQuick || return 1
  qs_poll 5 quick_hidden || e2e_fail "the bar's button did not hide the QuickLauncher" || return 1
  e2e_expect_box_focus "hiding the QuickLauncher by the bar's button"
}

quick_item_hidden() {
  quick_children && [ "$(awk -F'\t' -v n="$1" '$1 == "child=QuillstartPicture" && $2 == 1 && $4 == n' <<<"$E2E_CHILDREN")" = "" ]
}

# In the dark theme: a full page; dragged by its bare face past the screen's
# left edge it follows the pointer up and comes back inside; its own button
# hides it, and the bar's button shows it again where it was left, on the
# page it had.
quick_hides_by_its_own_button() {
  bar_click PictureShowQuick || return 1
  quick_expect_page 01 20 || return 1
  e2e_screenshot full-page-dark
  quick_window || return 1
  local top=$QUICK_TOP bare x y
  bare=$(wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title QuickLaunch --bare 2>/dev/null | tr -d '\r')
  IFS=, read -r x y <<<"${bare#bare=}"
  [ -n "$y" ] || e2e_fail "no bare face to drag the QuickLauncher by" || return 1
  xdotool mousemove "$x" "$y" mousedown 1 sleep 0.2 mousemove "$((x - 4))" "$((y - 3))" sleep 0.2 \
    mousemove "$((x - 30))" "$((y - 100))" sleep 0.2 mousemove 5 "$((y - 300))" sleep 0.2 mouseup 1
  qs_poll 5 quick_top_is "$((top - 300))" || e2e_fail "the drag left the QuickLauncher at top $QUICK_TOP, not $((top - 300))" || return 1
  qs_poll 5 quick_left_is 0 || e2e_fail "the QuickLauncher was left at $QUICK_LEFT after a drag past the left edge" || return 1
  e2e_expect_box_focus 'dragging the QuickLauncher' || return 1
  quick_click 'Program List Go Frorward' || return 1
  quick_expect_page 21 40 || return 1
  quick_click 'Hide QuickLauncher' || return 1
  qs_poll 5 quick_hidden || e2e_fail "its own button did not hide the QuickLauncher" || return 1
  e2e_expect_box_focus 'hiding the QuickLauncher by its own button' || return 1
  bar_click PictureShowQuick || return 1
  quick_expect_page 21 40 || return 1
  quick_window || return 1
  [ "$QUICK_LEFT" -eq 0 ] && [ "$QUICK_TOP" -eq "$((top - 300))" ] ||
    e2e_fail "shown again at $QUICK_LEFT,$QUICK_TOP, not where it was dragged to (0,$((top - 300)))"
}

e2e_scenario 'a QuickLauncher group of 45 pages 1-20, 21-40, 41-45 and back; a click launches; the height toggle above the bar moves it to the top' \
  quick_pages_launches_and_moves quick_start_45_light
e2e_scenario 'the QuickLauncher dragged past the edge comes back inside, hides by its own button and comes back where it was, on the page it had' \
  quick_hides_by_its_own_button quick_start_45_dark

# At 150 %: the Launch List pane with a question standing and the
# QuickLauncher with a full page, for the eye.
quick_start_45_at_150() {
  DPI_CHANGED=1
  dpi_set 144 || e2e_fail "could not set LogPixels to 144" || return 1
  quick_seed_45 0 1500 && e2e_start_quillstart
}

panes_at_150_percent() {
  choose_open || return 1
  choose_click 'Delete All Program From Launch List' || return 1
  qs_poll 5 choose_label_shows 'Program?' || e2e_fail "the clear question did not show" || return 1
  e2e_screenshot question-150
  choose_click 'No' || return 1
  bar_click PictureMenu2 || return 1
  qs_poll 10 choose_gone || e2e_fail "the pane stayed open" || return 1
  bar_click PictureShowQuick || return 1
  quick_expect_page 01 20 || return 1
  e2e_screenshot full-page-150
  e2e_expect_box_focus 'showing the QuickLauncher at 150 %'
}

e2e_scenario 'at 150 % the Launch List pane asks its question and the QuickLauncher shows a full page' \
  panes_at_150_percent quick_start_45_at_150
