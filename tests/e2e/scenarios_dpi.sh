# shellcheck shell=bash
# The bar at 150 % and 200 %: the DPI read at start gives whole twips per
# pixel (1440 / DPI, rounded down: 10 at 144 DPI, 7 at 192 DPI), and a size
# in twips becomes the nearest whole number of pixels, so 6360 x 348 twips
# give 636 x 35 pixels at 144 DPI and 909 x 50 at 192 DPI.

DPI_CHANGED=""

dpi_set() {
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >"$E2E_WORK/dpi.out" 2>&1
}

# Puts the DPI back for the scenarios that follow, whatever became of this one.
dpi_restore() {
  [ -n "$DPI_CHANGED" ] || return 0
  dpi_set 96
  DPI_CHANGED=""
}

dpi_start() {
  DPI_CHANGED=1
  dpi_set "$1" || e2e_fail "could not set LogPixels to $1" || return 1
  e2e_start_known
}

dpi_start_144() { dpi_start 144; }
dpi_start_192() { dpi_start 192; }

# Checks the size of the bar's window and that a Command still runs.
# Usage: dpi_bar_is WIDTH HEIGHT LABEL
dpi_bar_is() {
  local id geometry
  id=$(xdotool search --onlyvisible --name '^Quillstart$' | head -1)
  geometry=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: //p')
  e2e_screenshot "$3"
  import -window root -crop "$(($1 + 8))x$(($2 + 8))+0+0" +repage "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$3-bar.png" \
    >/dev/null 2>&1 || true
  [ "$geometry" = "${1}x${2}" ] || e2e_fail "the bar measures $geometry, expected ${1}x${2}" || return 1
  e2e_command 'w;example.org' || return 1
  e2e_wait_launch '"http://www.example.org"'
}

bar_at_150_percent() {
  dpi_bar_is 636 35 dpi144
}

bar_at_200_percent() {
  dpi_bar_is 909 50 dpi192
}

e2e_scenario 'at 144 DPI the bar measures 636 x 35 pixels and takes Commands' bar_at_150_percent dpi_start_144
e2e_scenario 'at 192 DPI the bar measures 909 x 50 pixels and takes Commands' bar_at_200_percent dpi_start_192

# At 240 DPI a twip is a sixth of a pixel, so the 1920 x 1440 screen counts
# as 11520 x 8640 twips: too small. The program says so and ends when the
# message is answered.
dpi_start_240() {
  DPI_CHANGED=1
  dpi_set 240 || e2e_fail "could not set LogPixels to 240" || return 1
  e2e_launch
}

small_screen_ends_the_program() {
  qs_poll 30 dialog_heading_shows "$(dialog_user_name)" || e2e_fail "no message came up" || return 1
  sleep 0.5
  dialog_read || return 1
  dialog_has_label 'Sorry For This Bad News' || e2e_fail "the title is not \"Sorry For This Bad News\"" || return 1
  dialog_body_has 'Screen resolution must be at least 1200x800 for Quillstart' ||
    e2e_fail "the message does not speak of the screen" || return 1
  e2e_bar_visible && { e2e_fail "the bar showed on a screen too small" || return 1; }
  dialog_screenshot small-screen
  dialog_click_button OK || return 1
  qs_poll 15 quillstart_gone || e2e_fail "Quillstart still runs after the message was answered" || return 1
  [ ! -e "$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/Set.Morvane" ] || e2e_fail "a settings record was written"
}

# No process of Quillstart.exe is left in this suite's Wine session: only
# processes whose environment names this prefix count, so a build or another
# session elsewhere on the machine is never mistaken for it.
quillstart_gone() {
  local pid
  for pid in $(pgrep -if 'quillstart\.exe'); do
    tr '\0' '\n' <"/proc/$pid/environ" 2>/dev/null | grep -qxF "WINEPREFIX=$WINEPREFIX" && return 1
  done
  return 0
}

e2e_scenario 'at 240 DPI the screen counts as too small: the message, then the end' small_screen_ends_the_program dpi_start_240
