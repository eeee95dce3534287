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
