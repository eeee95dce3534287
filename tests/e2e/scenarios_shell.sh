# shellcheck shell=bash
# Commands that go to the shell: a mail address, a file opened by its type,
# a folder in the file manager, and a program that does not exist.

mail_address() {
  e2e_command "e=a@b.example" || return 1
  e2e_wait_launch '"mailto:a@b.example"' || return 1
  e2e_wait_text ""
}

file_by_association() {
  e2e_command 'f=C:\somefile.txt' || return 1
  e2e_wait_launch 'C:\somefile.txt' || return 1
  e2e_wait_text ""
}

# Quillstart runs C:\windows\explorer.exe with the folder; Wine's explorer
# then shows a window of class ExplorerWClass titled with the folder's name.
folder_in_file_manager() {
  if e2e_explorer_shows Temp; then
    e2e_fail "a file manager window for Temp was open before the Command"
    return 1
  fi
  e2e_command 'd=C:\Temp' || return 1
  qs_poll 20 e2e_explorer_shows Temp || e2e_fail "no file manager window for C:\\Temp appeared" || return 1
  e2e_wait_text ""
}

# The start fails, the box empties all the same; a bug report dialog may
# appear and is not checked here.
missing_program() {
  e2e_command 'p=C:\nope.exe' || return 1
  e2e_wait_text "" || return 1
  sleep 1
  [ "$(e2e_log_lines)" -eq 0 ] || e2e_fail "something was launched: $(e2e_log_summary)"
}

e2e_scenario 'e=a@b.example opens mailto:a@b.example' mail_address
e2e_scenario 'f=C:\somefile.txt opens the file with its program' file_by_association
e2e_scenario 'd=C:\Temp opens the folder in the file manager' folder_in_file_manager
e2e_scenario 'p=C:\nope.exe launches nothing and empties the box' missing_program
