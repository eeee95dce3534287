# shellcheck shell=bash
# The data files a scenario starts from, written the way Quillstart writes
# them: text with CRLF line ends, strings in double quotes. DRIVE is the
# letter of the drive the data lives on: C (the system drive) or E (the
# flash drive, mapped to $E2E_WORK/stick).

# The Linux folder behind a drive letter.
e2e_drive_dir() {
  case $1 in
    C) echo "$WINEPREFIX/drive_c" ;;
    E) echo "$E2E_WORK/stick" ;;
  esac
}

# Writes a file from lines given as arguments, each ended by CRLF.
# Usage: e2e_write_lines FILE LINE...
e2e_write_lines() {
  mkdir -p "$(dirname "$1")"
  local file=$1
  shift
  printf '%s\r\n' "$@" >"$file"
}

# The date as the family record keeps it: "2", the year's first and last
# digits, day, month, the year's two middle digits.
e2e_family_date() {
  local y m d
  read -r y m d < <(date +'%Y %m %d')
  echo "2${y:0:1}${y:3:1}${d}${m}${y:1:2}"
}

# Makes Quillstart a known member of the family on the drive, so that it
# starts without the first-start messages. On the flash drive its folder is
# kept with "#" for the drive letter. Usage: e2e_seed_family DRIVE [FOLDER]
e2e_seed_family() {
  local drive=$1 folder=${2:-'\Quillstart\'}
  local family
  family="$(e2e_drive_dir "$drive")/Morvane/Kinfold"
  local letter=$drive
  [ "$drive" = E ] && letter='#'
  e2e_write_lines "$family/Kinfold.Morvane" 7 0 -1 '""' '""' '""' '""' '""'
  e2e_write_lines "$family/Guru.Morvane" "\"Quillstart\",\"QSLauncher\",$(e2e_family_date),\"$letter:$folder\""
}

# Writes a computer's settings record with the given program-list counter.
# LAST_FOLDER is the Add Item pane's last folder, empty by default.
# Usage: e2e_seed_set FILE PROGRAM_LAST [OPTIONS [THEME [LAST_FOLDER]]]
e2e_seed_set() {
  e2e_write_lines "$1" 10 "${3:-57}" 0 0 "\"${5:-}\"" -1 -1 "$2" 8 2 "${4:-0}"
}

# Writes a list file from NAME=TARGET pairs. Usage: e2e_seed_list FILE PAIR...
e2e_seed_list() {
  local file=$1 pair lines=()
  shift
  for pair in "$@"; do lines+=("\"${pair%%=*}\",\"${pair#*=}\""); done
  e2e_write_lines "$file" "${lines[@]}"
}

# Puts a copy of the recorder where a Launch List item points, so that its
# start is logged under that program's name. Usage: e2e_seed_program DRIVE PATH
# with PATH like 'Apps\myPlayer.exe'.
e2e_seed_program() {
  local target
  target="$(e2e_drive_dir "$1")/${2//\\//}"
  mkdir -p "$(dirname "$target")"
  cp "$E2E_TOOLS/recorder.exe" "$target"
}

# The computer name Quillstart sees in the prefix.
e2e_computer_name() {
  wine cmd /c 'echo %COMPUTERNAME%' >"$E2E_WORK/computername.out" 2>/dev/null
  tr -d '\r\n' <"$E2E_WORK/computername.out"
}

# Asks the bar to close as a person closing it would, and waits for the
# program to end. Usage: e2e_close_bar [endsession]
e2e_close_bar() {
  wine "$E2E_TOOLS/closebar.exe" "$@" >"$E2E_WORK/closebar.out" 2>&1 ||
    e2e_fail "the bar did not end after being closed: $(tr -d '\r' <"$E2E_WORK/closebar.out")"
}

# Compares a data file with the bytes expected. Usage: e2e_same_bytes FILE EXPECTED_FILE
e2e_same_bytes() {
  [ -f "$1" ] || e2e_fail "missing $1" || return 1
  cmp -s "$1" "$2" || e2e_fail "$(basename "$1") differs: $(od -c "$1" | head -5 | tr '\n' '|')"
}
