# shellcheck shell=bash
# Sourced by the run, test, end-to-end and benchmark scripts: a private X
# display with a window manager, a fresh Wine prefix, and the cleanup of
# everything they started. Processes are ended by their own ids only.

export WINEDEBUG=-all
# Wine wants a home folder even with a prefix of its own; CI may not set one.
HOME=${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}
export HOME
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"

QS_XVFB_PID=""
QS_WM_PID=""

# Polls a command until it succeeds; gives up after the given seconds.
# Usage: qs_poll SECONDS COMMAND [ARGS...]
qs_poll() {
  local seconds=$1
  shift
  local deadline=$((SECONDS + seconds))
  while true; do
    "$@" && return 0
    [ "$SECONDS" -ge "$deadline" ] && return 1
    sleep 0.1
  done
}

qs_display_free() {
  [ ! -e "/tmp/.X11-unix/X$1" ] && [ ! -e "/tmp/.X$1-lock" ]
}

qs_display_answers() {
  xdotool getdisplaygeometry >/dev/null 2>&1
}

qs_wm_answers() {
  xdotool get_desktop >/dev/null 2>&1
}

# Starts Xvfb on a free display and openbox on it, and exports DISPLAY.
# QS_SCREEN sets the screen's size in pixels (1280x800).
# Usage: qs_start_display LOG_DIR
qs_start_display() {
  local logs=$1 n
  for n in $(seq 90 160); do
    qs_display_free "$n" || continue
    Xvfb ":$n" -screen 0 "${QS_SCREEN:-1280x800}x24" -nolisten tcp >"$logs/xvfb.log" 2>&1 &
    QS_XVFB_PID=$!
    export DISPLAY=":$n"
    # The display must answer, and it must be our server that answers.
    if qs_poll 10 qs_display_answers && kill -0 "$QS_XVFB_PID" 2>/dev/null; then
      openbox >"$logs/openbox.log" 2>&1 &
      QS_WM_PID=$!
      qs_poll 10 qs_wm_answers && return 0
      # Another session's server or window manager won the display after
      # all: leave it to them and try the next one.
      echo "session: openbox did not start on $DISPLAY, trying the next display" >&2
      kill "$QS_WM_PID" 2>/dev/null || true
      wait "$QS_WM_PID" 2>/dev/null || true
      QS_WM_PID=""
    fi
    # Another session took the display first: try the next one.
    kill "$QS_XVFB_PID" 2>/dev/null || true
    wait "$QS_XVFB_PID" 2>/dev/null || true
    QS_XVFB_PID=""
  done
  echo "session: no free X display" >&2
  return 1
}

qs_stop_display() {
  if [ -n "$QS_WM_PID" ]; then
    kill "$QS_WM_PID" 2>/dev/null || true
    wait "$QS_WM_PID" 2>/dev/null || true
    QS_WM_PID=""
  fi
  if [ -n "$QS_XVFB_PID" ]; then
    kill "$QS_XVFB_PID" 2>/dev/null || true
    wait "$QS_XVFB_PID" 2>/dev/null || true
    QS_XVFB_PID=""
  fi
}

# Makes a fresh Wine prefix and exports WINEPREFIX. The user folders that a
# new prefix links into the Linux home become real folders inside it.
# Usage: qs_new_prefix DIR LOG_FILE
qs_new_prefix() {
  export WINEPREFIX=$1
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -u >"$2" 2>&1
  wineserver -w
  local link
  for link in "$WINEPREFIX"/drive_c/users/*/*; do
    if [ -L "$link" ]; then
      rm "$link"
      mkdir "$link"
    fi
  done
}

# Starts the persistent wineserver of the current prefix.
qs_start_wineserver() {
  wineserver -p >/dev/null 2>&1
}

# Ends every Wine process of the current prefix and waits until they are gone.
qs_stop_wine() {
  [ -n "${WINEPREFIX:-}" ] || return 0
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
}
