# shellcheck shell=bash
# Web address Commands: prefixes and domain substitution, and the forms that
# are no Command at all.

web_www_prefix() {
  e2e_command "w;example.org" || return 1
  e2e_wait_launch '"http://www.example.org"' || return 1
  e2e_wait_text ""
}

web_com_domain() {
  e2e_command "c/name" || return 1
  e2e_wait_launch '"http://www.name.com"' || return 1
  e2e_wait_text ""
}

web_tv_domain() {
  e2e_command "t/name" || return 1
  e2e_wait_launch '"http://www.name.tv"' || return 1
  e2e_wait_text ""
}

web_tv_long_code_does_nothing() {
  e2e_command "tv/name" || return 1
  e2e_expect_nothing_launched "tv/name"
}

unknown_code_does_nothing() {
  e2e_command "x-anything" || return 1
  e2e_expect_nothing_launched "x-anything"
}

e2e_scenario 'w;example.org opens http://www.example.org and empties the box' web_www_prefix
e2e_scenario 'c/name opens http://www.name.com' web_com_domain
e2e_scenario 't/name opens http://www.name.tv' web_tv_domain
e2e_scenario 'tv/name launches nothing and stays in the box' web_tv_long_code_does_nothing
e2e_scenario 'x-anything launches nothing and stays in the box' unknown_code_does_nothing
