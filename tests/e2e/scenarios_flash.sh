# shellcheck shell=bash
# Quillstart run from a flash drive (E:, a removable drive): its data lives
# on the drive, flash-side paths are kept with "#" for the drive letter, each
# computer has its own folder, and the lists shared by all computers (the
# flash-side programs, Email, Web URL) are seen everywhere.

FLASH_SHARED='Morvane/Morvane Apps/Quillstart'

flash_start() {
  local stick name
  stick=$(e2e_drive_dir E)
  name=$(e2e_computer_name)
  [ -n "$name" ] || e2e_fail "the prefix has no %COMPUTERNAME%" || return 1
  mkdir -p "$stick/Quillstart"
  cp "$E2E_EXE" "$stick/Quillstart/Quillstart.exe"
  e2e_seed_family E
  e2e_seed_program E 'Apps\stickPlayer.exe'
  e2e_seed_program C 'Apps\homePlayer.exe'
  e2e_seed_program C 'Apps\otherPlayer.exe'
  e2e_write_lines "$stick/$FLASH_SHARED/USBData.Morvane" 3 -1 -1 0
  e2e_seed_list "$stick/$FLASH_SHARED/ListUSBProg.Morvane" 'stickPlayer=#:\Apps\stickPlayer.exe'
  e2e_write_lines "$stick/$FLASH_SHARED/COMData.Morvane" 2 -1 0
  e2e_seed_list "$stick/$FLASH_SHARED/ListWeb.Morvane" 'news=http://news.example'
  e2e_seed_set "$stick/Morvane/$name/Quillstart/Set.Morvane" 0 56
  e2e_seed_list "$stick/Morvane/$name/Quillstart/ListProg.Morvane" 'homePlayer=C:\Apps\homePlayer.exe'
  e2e_seed_set "$stick/Morvane/OTHERPC/Quillstart/Set.Morvane" 0 56
  e2e_seed_list "$stick/Morvane/OTHERPC/Quillstart/ListProg.Morvane" 'otherPlayer=C:\Apps\otherPlayer.exe'
  rm -rf "$E2E_WORK/flash.before"
  cp -a "$stick/Morvane" "$E2E_WORK/flash.before"
  e2e_start_quillstart 'E:\Quillstart\Quillstart.exe'
}

# Types a Command key by key, checks the completion and runs it.
# Usage: flash_run TYPED COMPLETED SELECTION LOGGED
flash_run() {
  lists_type "$1" || return 1
  qs_poll 10 e2e_sel_is "$2" "$3" ||
    e2e_fail "after \"$1\" the box holds \"$E2E_TEXT\" ($E2E_SEL), expected \"$2\" ($3)" || return 1
  xdotool key Return
  e2e_wait_launch "$4" || return 1
  e2e_wait_text ""
}

flash_drive_keeps_its_lists_apart() {
  local stick
  stick=$(e2e_drive_dir E)
  flash_run 'p-s' 'p-stickPlayer' '3,13' 'E:\Apps\stickPlayer.exe' || return 1
  e2e_screenshot flash-started
  flash_run 'p-h' 'p-homePlayer' '3,12' 'C:\Apps\homePlayer.exe' || return 1
  flash_run 'w-n' 'w-news' '3,6' 'http://news.example' || return 1
  lists_type 'p-o' || return 1
  qs_poll 5 e2e_sel_is 'p-o' '3,3' ||
    e2e_fail "another computer's program was offered: the box holds \"$E2E_TEXT\" ($E2E_SEL)" || return 1
  xdotool key Return
  sleep 1
  e2e_text_is 'p-o' || e2e_fail "\"p-o\" did not stay: the box holds \"$E2E_TEXT\"" || return 1
  [ "$(e2e_log_lines)" -eq 3 ] || e2e_fail "expected three launches: $(e2e_log_summary)" || return 1
  e2e_close_bar || return 1
  [ ! -e "$(e2e_drive_dir C)/Morvane" ] || e2e_fail "a run from the flash drive wrote data on C:" || return 1
  local file
  local shared='Morvane Apps/Quillstart'
  for file in "$shared/ListUSBProg.Morvane" "$shared/ListWeb.Morvane" "$shared/USBData.Morvane" \
    "$shared/COMData.Morvane" Kinfold/Guru.Morvane Kinfold/Kinfold.Morvane \
    "$(e2e_computer_name)/Quillstart/ListProg.Morvane" "$(e2e_computer_name)/Quillstart/Set.Morvane" \
    OTHERPC/Quillstart/ListProg.Morvane OTHERPC/Quillstart/Set.Morvane; do
    e2e_same_bytes "$stick/Morvane/$file" "$E2E_WORK/flash.before/$file" || return 1
  done
}

e2e_scenario 'from a flash drive: shared and own lists complete and start, another computer'"'"'s stay unseen, files kept' \
  flash_drive_keeps_its_lists_apart flash_start
