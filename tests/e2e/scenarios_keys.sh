# shellcheck shell=bash
# How the box reads what is typed: the code in any case, the Launch Name as
# typed, tasks with unknown names, and Esc.

code_in_capitals() {
  e2e_command "W;Example.org" || return 1
  e2e_wait_launch '"http://www.Example.org"' || return 1
  e2e_wait_text ""
}

web_http_prefix() {
  e2e_command "w:example.net/page" || return 1
  e2e_wait_launch '"http://example.net/page"' || return 1
  e2e_wait_text ""
}

unknown_task_empties_box() {
  e2e_command "a.Nonsense" || return 1
  e2e_wait_text "" || return 1
  e2e_expect_nothing_launched ""
}

escape_clears_box() {
  e2e_enter_text "w;example.org" || return 1
  xdotool key Escape
  e2e_wait_text "" || return 1
  e2e_expect_nothing_launched ""
}

e2e_scenario 'W;Example.org: the code in capitals works, the name keeps its case' code_in_capitals
e2e_scenario 'w:example.net/page opens http://example.net/page' web_http_prefix
e2e_scenario 'a.Nonsense empties the box and launches nothing' unknown_task_empties_box
e2e_scenario 'Esc clears a typed Command without running it' escape_clears_box
