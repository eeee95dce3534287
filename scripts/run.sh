#!/usr/bin/env bash
# The run command: installs what is missing, builds Quillstart.exe and starts
# it under Wine from C:\Quillstart\ in its own prefix (build/wineprefix,
# kept between runs; WINEPREFIX overrides it).
# With a display ($DISPLAY) the bar opens there and the command returns when
# Quillstart ends. Without one it starts Xvfb and openbox, waits for the first
# window (the bar, or on a first start the name prompt before it), saves a
# screenshot, prints its path, and ends the session.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

bash scripts/install-deps.sh
bash scripts/build.sh win

# shellcheck source=session.sh
source scripts/session.sh

export WINEPREFIX=${WINEPREFIX:-$root/build/wineprefix}
logs=$root/build/run-logs
mkdir -p "$logs"
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  echo "run: making the Wine prefix $WINEPREFIX"
  qs_new_prefix "$WINEPREFIX" "$logs/wineboot.log"
fi
mkdir -p "$WINEPREFIX/drive_c/Quillstart"
cp "${QS_WIN_BUILD:-build/win}/win32/Quillstart.exe" "$WINEPREFIX/drive_c/Quillstart/Quillstart.exe"

start_quillstart() {
  cd "$WINEPREFIX/drive_c/Quillstart"
  wine 'C:\Quillstart\Quillstart.exe' >"$logs/quillstart.log" 2>&1
}

if [ -n "${DISPLAY:-}" ]; then
  echo "run: Quillstart on $DISPLAY"
  start_quillstart
  exit 0
fi

finish() {
  qs_stop_wine
  qs_stop_display
}
trap finish EXIT

qs_start_display "$logs"
qs_start_wineserver
echo "run: no display given; Quillstart on Xvfb $DISPLAY"
start_quillstart &
bar_visible() {
  xdotool search --onlyvisible --name '^Quillstart$' >/dev/null 2>&1
}
if ! qs_poll 60 bar_visible; then
  echo "run: the bar did not appear within 60 s; see $logs/quillstart.log" >&2
  exit 1
fi
# The pointer goes to a corner, off the bar; the bar paints right after it
# is mapped: give that one moment.
xdotool mousemove 1279 799
sleep 1
shot=$root/build/run-screenshot.png
import -window root "$shot"
echo "run: screenshot of the screen: $shot"
