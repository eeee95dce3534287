# shellcheck shell=bash
# Commands that name a Launch List item, from lists saved on the computer:
# auto-fill completes the name as it is typed, Enter starts the item, a name
# that is not in the list stays in the box, and closing the bar writes the
# lists back unchanged.

LISTS_DIR='Morvane/Morvane Apps/Quillstart'

# Two programs in the computer's Program list, the Set record counting them.
lists_start() {
  local data
  data="$(e2e_drive_dir C)/$LISTS_DIR"
  e2e_seed_family C
  e2e_seed_program C 'Apps\myPlayer.exe'
  e2e_seed_program C 'Apps\zed.exe'
  # The Add Item pane opens in the program's folder, which the record
  # already names, so nothing in it changes.
  e2e_seed_set "$data/Set.Morvane" 1 57 0 'C:\Quillstart'

  e2e_seed_list "$data/ListProg.Morvane" 'myPlayer=C:\Apps\myPlayer.exe' 'zed=C:\Apps\zed.exe'
  cp "$data/ListProg.Morvane" "$E2E_WORK/ListProg.expected"
  cp "$data/Set.Morvane" "$E2E_WORK/Set.expected"
  touch -d '2020-01-01 00:00' "$data/Set.Morvane" "$data/ListProg.Morvane"
  e2e_start_quillstart
}

e2e_sel_is() {
  wine "$E2E_TOOLS/probe.exe" >"$E2E_WORK/probe.out" 2>/dev/null || return 1
  E2E_TEXT=$(tr -d '\r' <"$E2E_WORK/probe.out" | sed -n 's/^text=//p')
  E2E_SEL=$(tr -d '\r' <"$E2E_WORK/probe.out" | sed -n 's/^sel=//p')
  [ "$E2E_TEXT" = "$1" ] && [ "$E2E_SEL" = "$2" ]
}

# Clicks into the box, empties it and types key by key, as a person does.
lists_type() {
  for _ in 1 2; do
    e2e_click_box || return 1
    xdotool key End shift+Home BackSpace
    qs_poll 5 e2e_text_is "" || continue
    xdotool type --delay 80 -- "$1"
    return 0
  done
  e2e_fail "could not empty the box, it holds \"$E2E_TEXT\""
}

program_name_completes_and_starts() {
  lists_type 'p-m' || return 1
  qs_poll 10 e2e_sel_is 'p-myPlayer' '3,10' ||
    e2e_fail "after \"p-m\" the box holds \"$E2E_TEXT\" with selection $E2E_SEL, expected \"p-myPlayer\" with \"yPlayer\" selected" ||
    return 1
  e2e_screenshot autofill
  xdotool key Return
  e2e_wait_launch 'myPlayer.exe' || return 1
  e2e_wait_text "" || return 1
  lists_type 'p-zz' || return 1
  qs_poll 5 e2e_text_is 'p-zz' || e2e_fail "after \"p-zz\" the box holds \"$E2E_TEXT\"" || return 1
  xdotool key Return
  sleep 1
  e2e_text_is 'p-zz' || e2e_fail "an unknown name did not stay: the box holds \"$E2E_TEXT\"" || return 1
  [ "$(e2e_log_lines)" -eq 1 ] || e2e_fail "expected one launch: $(e2e_log_summary)"
}

# Closing the bar saves: nothing changed, so the list comes back byte for
# byte and the settings record is not rewritten at all.
closing_keeps_unchanged_lists() {
  lists_type 'p-z' || return 1
  qs_poll 10 e2e_sel_is 'p-zed' '3,5' || e2e_fail "after \"p-z\" the box holds \"$E2E_TEXT\" ($E2E_SEL)" || return 1
  e2e_close_bar || return 1
  local data
  data="$(e2e_drive_dir C)/$LISTS_DIR"
  e2e_same_bytes "$data/ListProg.Morvane" "$E2E_WORK/ListProg.expected" || return 1
  e2e_same_bytes "$data/Set.Morvane" "$E2E_WORK/Set.expected" || return 1
  [ "$(date -r "$data/Set.Morvane" +%Y)" = 2020 ] || e2e_fail "Set.Morvane was rewritten though nothing changed"
}

e2e_scenario 'p-m completes to p-myPlayer from the Program list, Enter starts it, p-zz stays' \
  program_name_completes_and_starts lists_start
e2e_scenario 'closing the bar writes the unchanged list back byte for byte and leaves the settings alone' \
  closing_keeps_unchanged_lists lists_start

# All five groups at 32,767 items with their targets present, one Program
# target the recorder: the bar shows while the targets are still tested, and
# keys typed as soon as the box has the focus wait until the lists are whole,
# then are taken in order.
full_lists_start() {
  e2e_seed_family C
  python3 bench/seed_lists.py "$(e2e_drive_dir C)" full
  cp "$E2E_TOOLS/recorder.exe" "$(e2e_drive_dir C)/Bench-full/Programs/p20000.exe"
  e2e_start_quillstart
}

keys_typed_at_once_reach_a_full_list() {
  e2e_click_box || return 1
  xdotool key End shift+Home BackSpace
  xdotool type --delay 1 -- 'p-Item20000'
  xdotool key Return
  e2e_wait_launch 'p20000.exe' || return 1
  e2e_wait_text "" || return 1
  [ "$(e2e_log_lines)" -eq 1 ] || e2e_fail "expected one launch: $(e2e_log_summary)"
}

e2e_scenario 'with every list full, an item typed at once after the bar shows starts from the Program list' \
  keys_typed_at_once_reach_a_full_list full_lists_start
