# shellcheck shell=bash
# The end-to-end harness: a Wine prefix in which the browser, the mail program
# and the text editor are the recorder, the real Quillstart.exe on a private X
# display, and the steps a person takes at the bar: click into the Command
# box, type, press Enter. Every effect is polled for with a time limit.
#
# Needs: E2E_EXE (Quillstart.exe), E2E_TOOLS (folder of recorder.exe,
# probe.exe, winlist.exe, drivetype.exe, endtasks.exe, closebar.exe), E2E_WORK (scratch folder),
# E2E_ARTIFACTS (where screenshots go).

E2E_REASON=""
E2E_SCENARIOS=()
E2E_FUNCTIONS=()
E2E_STARTS=()

# Registers a scenario. Usage: e2e_scenario NAME FUNCTION [START]
# START prepares the data files and starts Quillstart; by default the program
# finds itself known on this computer (no first start) and its bar comes up.
# Stops Wine and the display and removes the run's work folder: the end of
# every script that drives a session.
e2e_end_session() {
  qs_stop_wine
  qs_stop_display
  rm -rf "$E2E_WORK"
}

e2e_scenario() {
  E2E_SCENARIOS+=("$1")
  E2E_FUNCTIONS+=("$2")
  E2E_STARTS+=("${3:-e2e_start_known}")
}

# Records why the running scenario fails; returns non-zero for `|| return`.
e2e_fail() {
  E2E_REASON=$1
  return 1
}

e2e_launch_log() {
  echo "$WINEPREFIX/drive_c/rec/launches.log"
}

# Writes the association of a URL scheme or file type to the recorder.
e2e_reg_open_command() {
  printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\%s\\shell\\open\\command]\r\n@="\\"C:\\\\rec\\\\recorder.exe\\" \\"%%1\\""\r\n\r\n' "$1"
}

e2e_registry_file() {
  printf 'Windows Registry Editor Version 5.00\r\n\r\n'
  printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\http]\r\n@="URL:HyperText Transfer Protocol"\r\n"URL Protocol"=""\r\n\r\n'
  printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\https]\r\n@="URL:HyperText Transfer Protocol with Privacy"\r\n"URL Protocol"=""\r\n\r\n'
  printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\mailto]\r\n@="URL:MailTo Protocol"\r\n"URL Protocol"=""\r\n\r\n'
  printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\.txt]\r\n@="txtfile"\r\n\r\n'
  e2e_reg_open_command http
  e2e_reg_open_command https
  e2e_reg_open_command mailto
  e2e_reg_open_command txtfile
  printf '[HKEY_LOCAL_MACHINE\\Software\\Wine\\Drives]\r\n"e:"="floppy"\r\n\r\n'
}

# Builds the suite's one prefix: real user folders, the recorder as the
# handler of http, https, mailto and .txt, a folder mapped as removable drive
# E:, Quillstart.exe in C:\Quillstart\, and the files the scenarios open.
e2e_setup_prefix() {
  qs_new_prefix "$E2E_WORK/prefix" "$E2E_WORK/wineboot.log"
  local c="$WINEPREFIX/drive_c"
  mkdir -p "$c/rec" "$c/Quillstart" "$c/Temp" "$E2E_WORK/stick"
  cp "$E2E_TOOLS/recorder.exe" "$c/rec/recorder.exe"
  cp "$E2E_EXE" "$c/Quillstart/Quillstart.exe"
  printf 'a text file opened by Quillstart\r\n' >"$c/somefile.txt"
  ln -sfn "$E2E_WORK/stick" "$WINEPREFIX/dosdevices/e:"
  e2e_registry_file >"$E2E_WORK/associations.reg"
  wine regedit /S "$(winepath -w "$E2E_WORK/associations.reg" 2>/dev/null)" >"$E2E_WORK/regedit.log" 2>&1
  local key
  for key in http https mailto txtfile; do
    wine reg query "HKLM\\Software\\Classes\\$key\\shell\\open\\command" /ve >"$E2E_WORK/reg.out" 2>&1
    grep -qF 'C:\rec\recorder.exe' "$E2E_WORK/reg.out" || e2e_fail "the $key association did not reach the registry" || return 1
  done
  # The drive type is read when the server starts.
  qs_stop_wine
  qs_start_wineserver
  wine "$E2E_TOOLS/drivetype.exe" 'E:\' >"$E2E_WORK/drivetype.out" 2>&1 || true
  grep -q '^type=2' "$E2E_WORK/drivetype.out" || e2e_fail "drive E: is not removable: $(tr -d '\r' <"$E2E_WORK/drivetype.out")"
}

# Reads the Command box with the probe into E2E_TEXT and E2E_RECT.
e2e_probe() {
  wine "$E2E_TOOLS/probe.exe" >"$E2E_WORK/probe.out" 2>"$E2E_WORK/probe.err" || return 1
  local out
  out=$(tr -d '\r' <"$E2E_WORK/probe.out")
  E2E_TEXT=$(sed -n 's/^text=//p' <<<"$out")
  E2E_RECT=$(sed -n 's/^rect=//p' <<<"$out")
  [ -n "$E2E_RECT" ]
}

# A dialog carries the bar's title too: the probe tells the bar apart.
e2e_bar_visible() {
  xdotool search --onlyvisible --name '^Quillstart$' >/dev/null 2>&1 &&
    wine "$E2E_TOOLS/probe.exe" >"$E2E_WORK/probe-bar.out" 2>/dev/null &&
    grep -q '^bar=1' "$E2E_WORK/probe-bar.out"
}

e2e_bar_gone() {
  ! e2e_bar_visible
}

# Ends what the last scenario left running (Quillstart and its dialogs, file
# manager windows, a stray recorder or crash dialog) and empties the launch
# log, so that each scenario starts clean while the wineserver stays warm.
# Should that fail, all of Wine is restarted.
e2e_reset() {
  if ! wine "$E2E_TOOLS/endtasks.exe" image:Quillstart.exe image:recorder.exe image:winedbg.exe image:notepad.exe \
    class:ExplorerWClass >"$E2E_WORK/endtasks.out" 2>&1 || ! qs_poll 10 e2e_bar_gone; then
    qs_stop_wine
    qs_start_wineserver
  fi
  rm -f "$(e2e_launch_log)"
  rm -rf "$WINEPREFIX/drive_c/Morvane" "$E2E_WORK/stick/"*
  dpi_restore
}

# Starts a copy of Quillstart in the background. Usage: e2e_launch [PROGRAM]
# (default C:\Quillstart\Quillstart.exe). QS_APP_DEBUG, when set, is Wine's
# debug channel list for that copy alone (its output goes to quillstart.log).
e2e_launch() {
  local program=${1:-'C:\Quillstart\Quillstart.exe'}
  (cd "$WINEPREFIX/drive_c" && WINEDEBUG=${QS_APP_DEBUG:--all} exec wine "$program" >>"$E2E_WORK/quillstart.log" 2>&1 &)
}

# Waits for the bar of a started copy and its Command box.
e2e_wait_bar() {
  qs_poll 30 e2e_bar_visible || e2e_fail "the bar window did not appear within 30 s" || return 1
  qs_poll 10 e2e_probe || e2e_fail "the probe found no Command box in the bar"
}

e2e_start_quillstart() {
  e2e_launch "$@"
  e2e_wait_bar
}

# The usual start: Quillstart has run on this computer before.
e2e_start_known() {
  e2e_seed_family C
  e2e_start_quillstart
}

# The screen place of a bar control's middle into BAR_X and BAR_Y, once the
# control has its window: a picture button gets it a moment after the bar's
# first paint. Usage: bar_centre NAME
bar_centre_now() {
  wine "$E2E_TOOLS/bartool.exe" centre "$1" >"$E2E_WORK/centre.out" 2>/dev/null || return 1
  IFS=, read -r BAR_X BAR_Y <<<"$(tr -d '\r' <"$E2E_WORK/centre.out" | sed -n 's/^centre=//p')"
  [ -n "$BAR_X" ]
}

bar_centre() {
  qs_poll 5 bar_centre_now "$1"
}

bar_click() {
  bar_centre "$1" || e2e_fail "no place for $1" || return 1
  xdotool mousemove "$BAR_X" "$BAR_Y" click 1
}

# Clicks into the middle of the Command box, which gives it the focus.
e2e_click_box() {
  e2e_probe || e2e_fail "the probe found no Command box" || return 1
  local l t r b
  IFS=, read -r l t r b <<<"$E2E_RECT"
  xdotool mousemove $(((l + r) / 2)) $(((t + b) / 2)) click 1
}

e2e_text_is() {
  e2e_probe && [ "$E2E_TEXT" = "$1" ]
}

# Waits until the box holds exactly the given text.
e2e_wait_text() {
  qs_poll "${2:-10}" e2e_text_is "$1" || e2e_fail "the box holds \"$E2E_TEXT\", expected \"$1\""
}

# Clicks into the box, selects whatever it holds (the bar starts with its
# name in it) and types the text over it. Keys typed before the box had the
# focus are lost, so a second attempt follows a first that did not arrive.
e2e_enter_text() {
  for _ in 1 2; do
    e2e_click_box || return 1
    xdotool key End shift+Home
    xdotool type --delay 25 -- "$1"
    qs_poll 5 e2e_text_is "$1" && return 0
  done
  e2e_fail "typed \"$1\" but the box holds \"$E2E_TEXT\""
}

# Reads which window holds the keyboard focus of Quillstart's thread into
# E2E_FOCUS ("focus=", "edit=", "text=", "top=", "topclass=", "active="
# lines of focus.exe).
e2e_focus() {
  wine "$E2E_TOOLS/focus.exe" >"$E2E_WORK/focus.out" 2>/dev/null || return 1
  E2E_FOCUS=$(tr -d '\r' <"$E2E_WORK/focus.out")
}

e2e_focus_field() {
  sed -n "s/^$1=//p" <<<"$E2E_FOCUS"
}

# True when the focus is on the n-th edit box of the bar (1 the Command box).
e2e_focus_on_bar_edit() {
  e2e_focus && [ "$(e2e_focus_field topclass)" = QuillstartBorderless ] && [ "$(e2e_focus_field edit)" = "$1" ]
}

e2e_focus_summary() {
  tr '\n' '|' <<<"$E2E_FOCUS"
}

# After a road that must leave the keyboard focus in the Command box: the
# focus is there, a few typed characters land in the box and are taken back.
# Usage: e2e_expect_box_focus ROAD
e2e_expect_box_focus() {
  qs_poll 5 e2e_focus_on_bar_edit 1 || e2e_fail "after $1 the focus is not in the Command box: $(e2e_focus_summary)" ||
    return 1
  e2e_probe || e2e_fail "the probe found no Command box after $1" || return 1
  local before=$E2E_TEXT
  xdotool key End
  xdotool type --delay 25 -- "zq"
  qs_poll 5 e2e_text_is "${before}zq" ||
    e2e_fail "after $1 typing did not reach the Command box: it holds \"$E2E_TEXT\", focus $(e2e_focus_summary)" ||
    return 1
  xdotool key BackSpace BackSpace
  qs_poll 5 e2e_text_is "$before" || e2e_fail "after $1 the typed characters could not be taken back" || return 1
  e2e_focus_on_bar_edit 1 || e2e_fail "after $1 the focus left the Command box: $(e2e_focus_summary)"
}

# The screen place of the middle of a window's shown picture button, found
# by its window text (its tooltip or its name), into E2E_X and E2E_Y.
# Usage: e2e_child_centre CLASS TITLE TEXT [CHILD_CLASS]
e2e_child_centre() {
  wine "$E2E_TOOLS/children.exe" "$1" --title "$2" --centre "$3" --class "${4:-QuillstartPicture}" \
    >"$E2E_WORK/centre-child.out" 2>/dev/null || return 1
  IFS=, read -r E2E_X E2E_Y <<<"$(tr -d '\r' <"$E2E_WORK/centre-child.out" | sed -n 's/^centre=//p')"
  [ -n "$E2E_Y" ]
}

# Clicks a window's shown picture button by its window text.
# Usage: e2e_click_child CLASS TITLE TEXT
e2e_click_child() {
  qs_poll 5 e2e_child_centre "$@" || e2e_fail "no shown \"$3\" in the window \"$2\"" || return 1
  xdotool mousemove "$E2E_X" "$E2E_Y" click 1
}

# True once no Quillstart.exe process runs (workingset.exe exits 1 then).
e2e_program_ended() {
  wine "$E2E_TOOLS/workingset.exe" Quillstart.exe >/dev/null 2>&1
  [ $? -eq 1 ]
}

# Exits by the bar's own exit button and waits for the program to end, so a
# start that follows does not find the copy that is still saving.
e2e_exit_by_button() {
  bar_click PictureExit || return 1
  qs_poll 15 e2e_bar_gone || e2e_fail "the bar did not close by its exit button" || return 1
  qs_poll 15 e2e_program_ended || e2e_fail "Quillstart still runs after its exit button"
}

# Types a Command, checks that it arrived as typed, saves a screenshot and
# presses Enter. Usage: e2e_command TEXT [SCREENSHOT_LABEL]
e2e_command() {
  e2e_enter_text "$1" || return 1
  e2e_screenshot "${2:-typed}"
  xdotool key Return
}

e2e_log_has() {
  [ -f "$(e2e_launch_log)" ] && grep -qF -- "$1" "$(e2e_launch_log)"
}

e2e_log_lines() {
  if [ -f "$(e2e_launch_log)" ]; then wc -l <"$(e2e_launch_log)"; else echo 0; fi
}

# Waits until the recorder has logged a line holding the text.
e2e_wait_launch() {
  qs_poll "${2:-15}" e2e_log_has "$1" || e2e_fail "no launch of $1 reached the recorder (log: $(e2e_log_summary))"
}

e2e_log_summary() {
  if [ -f "$(e2e_launch_log)" ]; then tr '\n' '|' <"$(e2e_launch_log)"; else echo "empty"; fi
}

# After a Command that must launch nothing: the text must still stand after a
# bounded wait; then a control Command must reach the recorder, and after a
# further wait it must be the only launch. Since Quillstart handles keys in
# order on one thread, a launch of the first Command would have come first.
e2e_expect_nothing_launched() {
  local standing=$1
  sleep 1
  e2e_text_is "$standing" || e2e_fail "the box holds \"$E2E_TEXT\" after Enter, expected \"$standing\" to stay" || return 1
  e2e_screenshot standing
  e2e_command "w;control.example" control || return 1
  e2e_wait_launch "http://www.control.example" || return 1
  sleep 1
  [ "$(e2e_log_lines)" -eq 1 ] || e2e_fail "something else was launched: $(e2e_log_summary)"
}

# Prints the visible top-level windows: pid, image path, class, title.
e2e_windows() {
  wine "$E2E_TOOLS/winlist.exe" >"$E2E_WORK/winlist.out" 2>/dev/null || return 1
  tr -d '\r' <"$E2E_WORK/winlist.out"
}

# True when the file manager shows a window for the folder of that name: a
# visible top-level window of class ExplorerWClass, owned by explorer.exe.
e2e_explorer_shows() {
  e2e_windows | awk -F'\t' -v title="$1" '
    tolower($2) ~ /\\explorer\.exe$/ && $3 == "ExplorerWClass" && $4 == title { found = 1 }
    END { exit !found }'
}

E2E_SHOT_PREFIX=""
e2e_screenshot() {
  import -window root "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$1.png" >/dev/null 2>&1 || true
}

# Keeps beside the screenshot what tells why a start or a scenario failed:
# Wine's output for the copies started so far, the processes running and
# the visible windows Wine knows, with their programs.
# Usage: e2e_keep_evidence start|failed
e2e_keep_evidence() {
  local into=$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$1
  cp "$E2E_WORK/quillstart.log" "$into-wine.log" 2>/dev/null || true
  ps -eo pid,ppid,stat,etime,args >"$into-processes.txt" 2>&1 || true
  timeout 20 wine "$E2E_TOOLS/winlist.exe" >"$into-windows.txt" 2>&1 || true
}

# Runs every registered scenario in a clean Wine session and prints
# PASS or FAIL with its name, then "N passed, M failed". Once the bar has
# failed to appear three times, the remaining scenarios fail at once rather
# than each waiting out the same time limit.
e2e_run_all() {
  local passed=0 failed=0 no_bar=0 i name began
  for i in "${!E2E_SCENARIOS[@]}"; do
    name=${E2E_SCENARIOS[$i]}
    # E2E_ONLY, a pattern, picks scenarios by function name when working on a few.
    [[ -z "${E2E_ONLY:-}" || "${E2E_FUNCTIONS[$i]}" =~ $E2E_ONLY ]] || continue
    if [ "$no_bar" -ge 3 ]; then
      echo "FAIL  $name: not run, the bar did not appear in three scenarios"
      failed=$((failed + 1))
      continue
    fi
    E2E_REASON=""
    E2E_SHOT_PREFIX=$(printf '%02d-%s' "$((i + 1))" "${E2E_FUNCTIONS[$i]}")
    e2e_reset
    began=$SECONDS
    if ! "${E2E_STARTS[$i]}"; then
      no_bar=$((no_bar + 1))
      e2e_screenshot failed
      e2e_keep_evidence start
      echo "FAIL  $name: $E2E_REASON ($((SECONDS - began)) s)"
      failed=$((failed + 1))
      continue
    fi
    if e2e_screenshot started && "${E2E_FUNCTIONS[$i]}"; then
      e2e_screenshot "done"
      echo "PASS  $name ($((SECONDS - began)) s)"
      passed=$((passed + 1))
    else
      e2e_screenshot failed
      e2e_keep_evidence failed
      echo "FAIL  $name: $E2E_REASON ($((SECONDS - began)) s)"
      failed=$((failed + 1))
    fi
  done
  E2E_PASSED=$passed
  E2E_FAILED=$failed
}

# Saves one part of the screen, in screen pixels from LEFT,TOP to
# RIGHT,BOTTOM. Usage: e2e_screenshot_area LEFT TOP RIGHT BOTTOM LABEL
e2e_screenshot_area() {
  import -window root -crop "$(($3 - $1))x$(($4 - $2))+$1+$2" +repage "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$5.png" \
    >/dev/null 2>&1 || true
}

# Reads Help's window into E2E_CHILDREN and its place into HELP_LEFT,
# HELP_TOP, HELP_RIGHT, HELP_BOTTOM; fails when it is not shown.
help_read() {
  wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title Help >"$E2E_WORK/help.out" 2>/dev/null || return 1
  E2E_CHILDREN=$(tr -d '\r' <"$E2E_WORK/help.out")
  IFS=, read -r HELP_LEFT HELP_TOP HELP_RIGHT HELP_BOTTOM <<<"$(sed -n 's/^window=//p' <<<"$E2E_CHILDREN")"
  [ -n "$HELP_BOTTOM" ]
}

help_gone() { ! help_read; }
