# shellcheck shell=bash
# The Preferences pane (the bar's "P" button) and the Code And Command pane
# (its "C" button) in the window of three panes, titled after the pane in
# front: a choice acts at once on the bar, Save keeps it for the next start
# and brings the Run key in step, a choice left unsaved lasts for the run, a
# theme is kept by the exit alone, and the Code And Command pane explains the
# two characters chosen in its lists with an example. Every road that opens
# or closes a pane leaves the keyboard in the Command box.

PREFS_DATA='Morvane/Morvane Apps/Quillstart'
PREFS_RUN_KEY='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
PREFS_RUN_VALUE='Morvane Quillstart'
PREFS_PROGRAM='C:\Quillstart\Quillstart.exe'
# Ten characters typed into the Command box: their places tell its font. An
# "m" is wider in bold, where a "W" of the usual sans serif faces is not.
PREFS_SAMPLE=mmmmmmmmmm
PREFS_DIRTY='Must press "Save" button to save Preferences..'
# The maker's site as the Code And Command pane's web examples show it.
CODE_SITE=quillstart.example

# A fixed disk's settings record with no Launch List, the bar at 100,100
# and the Add Item pane's folder where the program lies, as an exit keeps it.
# Usage: prefs_seed OPTIONS FONT_SIZE THEME
prefs_seed() {
  e2e_seed_family C
  e2e_write_lines "$(e2e_drive_dir C)/$PREFS_DATA/Set.Morvane" 10 "$1" 1500 1500 '"C:\Quillstart"' -1 -1 -1 "$2" 2 "$3"
}

# Checks the record the exit wrote. Usage: prefs_set_is OPTIONS FONT_SIZE THEME
prefs_set_is() {
  e2e_write_lines "$E2E_WORK/Set.expected" 10 "$1" 1500 1500 '"C:\Quillstart"' -1 -1 -1 "$2" 2 "$3"
  e2e_same_bytes "$(e2e_drive_dir C)/$PREFS_DATA/Set.Morvane" "$E2E_WORK/Set.expected"
}

prefs_start_plain_light() { prefs_seed 41 8 0 && e2e_start_quillstart; }
prefs_start_light() { prefs_seed 57 8 0 && e2e_start_quillstart; }

# As prefs_start_light, with one web address in the Launch List, so that the
# QuickLauncher has an item and shows.
prefs_start_light_with_a_web_item() {
  local shared
  shared="$(e2e_drive_dir C)/$PREFS_DATA"
  prefs_seed 57 8 0 || return 1
  e2e_write_lines "$shared/COMData.Morvane" 2 -1 0
  e2e_seed_list "$shared/ListWeb.Morvane" 'news=http://news.example/'
  e2e_start_quillstart
}

# Reads the shown children of the pane titled TITLE, with their states, into
# E2E_CHILDREN and the pane's screen rectangle into PANE_RECT; fails when
# that pane is not in front.
pane_children() {
  wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title "$1" --state >"$E2E_WORK/pane.out" 2>/dev/null ||
    return 1
  E2E_CHILDREN=$(tr -d '\r' <"$E2E_WORK/pane.out")
  PANE_RECT=$(sed -n 's/^window=//p' <<<"$E2E_CHILDREN")
}

prefs_shown() { pane_children Preferences; }
prefs_gone() { ! pane_children Preferences; }
code_shown() { pane_children 'Code And Command'; }
code_gone() { ! pane_children 'Code And Command'; }

prefs_open() {
  bar_click PictureMenu4 || return 1
  qs_poll 10 prefs_shown || e2e_fail "the Preferences pane did not open"
}

code_open() {
  bar_click PictureMenu3 || return 1
  qs_poll 10 code_shown || e2e_fail "the Code And Command pane did not open"
}

# Clicks a shown control of the pane in front by its text.
# Usage: pane_click TITLE TEXT [CLASS]
pane_click() { e2e_click_child QuillstartBorderless "$1" "$2" "${3:-QuillstartPicture}"; }
prefs_click() { pane_click Preferences "$@"; }

# "ENABLED<tab>CHECKED" of the shown button with that text.
pane_button_state() {
  awk -F'\t' -v text="$1" '
    /^child=/ { hit = ($1 == "child=Button" && $2 == 1 && $4 == text); next }
    hit && /^state=/ { sub(/^state=/, ""); print; exit }' <<<"$E2E_CHILDREN"
}

# Usage: prefs_box_is TEXT ENABLED CHECKED
prefs_box_is() {
  prefs_shown && [ "$(pane_button_state "$1")" = "$2"$'\t'"$3" ]
}

prefs_box_fail() {
  e2e_fail "\"$1\" stands $(pane_button_state "$1" | tr '\t' ' ') (enabled checked), expected $2 $3 $4"
}

# Usage: pane_label_shown TITLE TEXT
pane_label_shown() {
  pane_children "$1" &&
    awk -F'\t' -v text="$2" '$1 == "child=Static" && $2 == 1 && $4 == text { found = 1 } END { exit !found }' \
      <<<"$E2E_CHILDREN"
}

# The width in pixels of the Command box's first ten characters into E2E_WIDTH.
box_width() {
  e2e_probe || return 1
  local xs
  IFS=, read -r -a xs <<<"$(tr -d '\r' <"$E2E_WORK/probe.out" | sed -n 's/^places=//p')"
  [ "${#xs[@]}" -ge 10 ] || return 1
  E2E_WIDTH=$((xs[9] - xs[0]))
}

box_wider_than() { box_width && [ "$E2E_WIDTH" -gt "$1" ]; }

# Crops the pane in front out of the screen. Usage: pane_shot LABEL
pane_shot() {
  local l t r b
  IFS=, read -r l t r b <<<"$PANE_RECT"
  e2e_screenshot "$1"
  import -window root -crop "$((r - l))x$((b - t))+$l+$t" +repage "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-$1-pane.png" \
    >/dev/null 2>&1 || true
}

# Ticks Main Text Box Font Bold and chooses 12 points: the Command box
# changes at once; Save keeps both in the record and the next start shows them.
prefs_font_saved_for_the_next_start() {
  e2e_enter_text "$PREFS_SAMPLE" || return 1
  box_width || e2e_fail "the Command box's character places could not be read" || return 1
  local plain=$E2E_WIDTH bold big
  prefs_open || return 1
  e2e_expect_box_focus 'opening the Preferences pane' || return 1
  prefs_box_is 'Main Text Box Font Bold' 1 0 || prefs_box_fail 'Main Text Box Font Bold' 1 0 before || return 1
  prefs_box_is 12 1 0 || prefs_box_fail 12 1 0 before || return 1
  prefs_click 'Main Text Box Font Bold' Button || return 1
  qs_poll 5 prefs_box_is 'Main Text Box Font Bold' 1 1 || prefs_box_fail 'Main Text Box Font Bold' 1 1 || return 1
  qs_poll 5 box_wider_than "$plain" ||
    e2e_fail "the Command box did not turn bold: ten characters span $E2E_WIDTH pixels, as plain ($plain)" || return 1
  bold=$E2E_WIDTH
  prefs_click 12 Button || return 1
  qs_poll 5 prefs_box_is 12 1 1 || prefs_box_fail 12 1 1 || return 1
  qs_poll 5 box_wider_than $((bold * 13 / 10)) ||
    e2e_fail "the Command box did not grow to 12 points: ten characters span $E2E_WIDTH pixels, $bold at 8" ||
    return 1
  big=$E2E_WIDTH
  qs_poll 5 pane_label_shown Preferences "$PREFS_DIRTY" || e2e_fail "the pane does not ask for Save" || return 1
  pane_shot dirty
  prefs_click 'Preferences - Save' || return 1
  qs_poll 10 prefs_gone || e2e_fail "Save did not close the pane" || return 1
  e2e_expect_box_focus 'the Save of the Preferences pane' || return 1
  e2e_exit_by_button || return 1
  prefs_set_is 57 12 0 || return 1
  e2e_start_quillstart || return 1
  e2e_enter_text "$PREFS_SAMPLE" || return 1
  box_width || e2e_fail "the Command box's character places could not be read after the restart" || return 1
  [ "$E2E_WIDTH" -eq "$big" ] ||
    e2e_fail "after the restart ten characters span $E2E_WIDTH pixels; bold at 12 they spanned $big" || return 1
  prefs_open || return 1
  prefs_box_is 'Main Text Box Font Bold' 1 1 || prefs_box_fail 'Main Text Box Font Bold' 1 1 'after the restart' ||
    return 1
  prefs_box_is 12 1 1 || prefs_box_fail 12 1 1 'after the restart'
}

PREFS_QUICK_BARE=""

# The place of the QuickLauncher's bare face, found once it shows.
prefs_quick_bare() {
  PREFS_QUICK_BARE=$(wine "$E2E_TOOLS/children.exe" QuillstartBorderless --title QuickLaunch --bare 2>/dev/null |
    tr -d '\r' | sed -n 's/^bare=//p')
  [ -n "$PREFS_QUICK_BARE" ]
}

prefs_quick_uncovered() {
  local l t r b x=${PREFS_QUICK_BARE%,*} y=${PREFS_QUICK_BARE#*,}
  IFS=, read -r l t r b <<<"$PANE_RECT"
  [ "$x" -lt "$l" ] || [ "$x" -ge "$r" ] || [ "$y" -lt "$t" ] || [ "$y" -ge "$b" ]
}

# The form colour of a theme in the gap of the bar, on the QuickLauncher's
# bare face and in the pane, where a box's row lies blank right of its
# caption.
prefs_theme_shown() {
  local expected=${THEME_FORM_COLORS[$1]} id bar quick pane l t r b row
  id=$(xdotool search --onlyvisible --name '^Quillstart$' | head -1)
  eval "$(xdotool getwindowgeometry --shell "$id")"
  bar=$(screen_pixel $((X + 36)) $((Y + 11)))
  # The QuickLauncher counts while it is open.
  quick=$expected
  [ -z "$PREFS_QUICK_BARE" ] || quick=$(screen_pixel "${PREFS_QUICK_BARE%,*}" "${PREFS_QUICK_BARE#*,}")
  prefs_shown || return 1
  row=$(awk -F'\t' '$1 == "child=Button" && $2 == 1 && $4 == "Start Minimized On Screen" { print $3; exit }' \
    <<<"$E2E_CHILDREN")
  IFS=, read -r l t r b <<<"$row"
  pane=$(screen_pixel $((r - 8)) $(((t + b) / 2)))
  PREFS_SEEN="bar #$bar, QuickLauncher #$quick, pane #$pane"
  [ "$bar" = "$expected" ] && [ "$quick" = "$expected" ] && [ "$pane" = "$expected" ]
}

# A box ticked and left unsaved stays ticked for the run and is gone after
# a restart; each theme recolours the bar, an open QuickLauncher and the
# pane at once, and the last one is kept by an exit with no Save.
prefs_unsaved_for_the_run_themes_at_once() {
  local box='  Show Add URL Box At Start' theme
  PREFS_QUICK_BARE=""
  prefs_open || return 1
  prefs_click "$box" Button || return 1
  qs_poll 5 prefs_box_is "$box" 1 1 || prefs_box_fail "$box" 1 1 || return 1
  qs_poll 5 pane_label_shown Preferences "$PREFS_DIRTY" || e2e_fail "the pane does not ask for Save" || return 1
  prefs_click Close || return 1
  qs_poll 10 prefs_gone || e2e_fail "the pane's close button did not close it" || return 1
  e2e_expect_box_focus "closing the Preferences pane by its close button" || return 1
  # The QuickLauncher first: showing it closes a pane, opening a pane leaves
  # it. Its bare face is read before the pane may cover part of it.
  bar_click PictureShowQuick || return 1
  qs_poll 10 prefs_quick_bare || e2e_fail "the QuickLauncher did not show" || return 1
  prefs_open || return 1
  prefs_quick_uncovered || e2e_fail "the pane covers the QuickLauncher's bare face at $PREFS_QUICK_BARE" || return 1
  prefs_box_is "$box" 1 1 || prefs_box_fail "$box" 1 1 'on opening again' || return 1
  pane_label_shown Preferences "$PREFS_DIRTY" || e2e_fail "the pending change no longer asks for Save" || return 1
  for theme in 1 2 3 4 5 0 6; do
    prefs_click "Color $((theme + 1))" Button || return 1
    qs_poll 5 prefs_theme_shown "$theme" ||
      e2e_fail "\"Color $((theme + 1))\" shows $PREFS_SEEN, expected #${THEME_FORM_COLORS[$theme]}" || return 1
    pane_shot "theme$theme"
  done
  bar_click PictureMenu4 || return 1
  qs_poll 10 prefs_gone || e2e_fail "the bar's P button did not close the pane" || return 1
  e2e_expect_box_focus "closing the Preferences pane by its button on the bar" || return 1
  e2e_exit_by_button || return 1
  PREFS_QUICK_BARE=""
  prefs_set_is 57 8 6 || return 1
  e2e_start_quillstart || return 1
  prefs_open || return 1
  prefs_box_is "$box" 1 0 || prefs_box_fail "$box" 1 0 'after the restart' || return 1
  prefs_box_is 'Color 7' 1 1 || prefs_box_fail 'Color 7' 1 1 'after the restart' || return 1
  qs_poll 5 prefs_theme_shown 6 || e2e_fail "after the restart theme 6 shows $PREFS_SEEN" || return 1
  pane_label_shown Preferences "$PREFS_DIRTY" && { e2e_fail "after the restart the pane still asks for Save" || return 1; }
  return 0
}

# The data of the autostart value, empty when there is none.
run_value() {
  wine reg query "$PREFS_RUN_KEY" /v "$PREFS_RUN_VALUE" >"$E2E_WORK/run.out" 2>&1 || return 0
  tr -d '\r' <"$E2E_WORK/run.out" | grep -F "$PREFS_RUN_VALUE" | sed -E 's/.*REG_[A-Z_]+ +//'
}

run_value_is() { [ "$(run_value)" = "$1" ]; }

prefs_start_without_autostart() {
  wine reg delete "$PREFS_RUN_KEY" /v "$PREFS_RUN_VALUE" /f >"$E2E_WORK/run-delete.out" 2>&1
  prefs_seed 56 8 0 && e2e_start_quillstart
}

# Start With Windows ticked and saved writes the Run key's value, unticked
# and saved deletes it; from a flash drive the box is greyed.
prefs_start_with_windows() {
  local box='  Start With Windows'
  run_value_is '' || e2e_fail "a Run value stands before the test: $(run_value)" || return 1
  prefs_open || return 1
  prefs_box_is "$box" 1 0 || prefs_box_fail "$box" 1 0 before || return 1
  prefs_click "$box" Button || return 1
  qs_poll 5 prefs_box_is "$box" 1 1 || prefs_box_fail "$box" 1 1 || return 1
  run_value_is '' || e2e_fail "the tick alone wrote the Run value" || return 1
  prefs_click 'Preferences - Save' || return 1
  qs_poll 10 run_value_is "$PREFS_PROGRAM" || e2e_fail "Save did not write the Run value: \"$(run_value)\"" || return 1
  qs_poll 10 prefs_gone || e2e_fail "Save did not close the pane" || return 1
  e2e_expect_box_focus 'the Save of the Preferences pane' || return 1
  prefs_open || return 1
  prefs_click "$box" Button || return 1
  qs_poll 5 prefs_box_is "$box" 1 0 || prefs_box_fail "$box" 1 0 'unticked' || return 1
  prefs_click 'Preferences - Save' || return 1
  qs_poll 10 run_value_is '' || e2e_fail "Save did not delete the Run value: \"$(run_value)\"" || return 1
  qs_poll 10 prefs_gone || e2e_fail "the second Save did not close the pane" || return 1
  e2e_exit_by_button || return 1
  prefs_set_is 56 8 0 || return 1
  flash_start || return 1
  prefs_open || return 1
  pane_shot flash
  prefs_box_is "$box" 0 0 || prefs_box_fail "$box" 0 0 'from the flash drive'
}

# The visible controls of a class, top first: "LEFT,TOP,RIGHT,BOTTOM<tab>TEXT".
pane_controls() {
  awk -F'\t' -v cls="child=$1" '$1 == cls && $2 == 1 { split($3, r, ","); print r[2] "\t" $3 "\t" $4 }' \
    <<<"$E2E_CHILDREN" | sort -n -k1,1 | cut -f2-
}

# The n-th visible control of a class, top first: its rectangle and text
# into CODE_RECT and CODE_TEXT.
code_control() {
  code_shown || return 1
  local line
  line=$(pane_controls "$1" | sed -n "${2}p")
  [ -n "$line" ] || return 1
  CODE_RECT=${line%%$'\t'*}
  CODE_TEXT=${line#*$'\t'}
}

# The explanation of the example: the first label below the example's box.
code_label_command() {
  code_control Edit 3 || return 1
  local bottom
  bottom=$(cut -d, -f4 <<<"$CODE_RECT")
  CODE_TEXT=$(awk -F'\t' -v below="$bottom" '$1 == "child=Static" && $2 == 1 {
      split($3, r, ","); if (r[2] >= below && (!found || r[2] < top)) { found = 1; top = r[2]; best = $4 } }
    END { print best }' <<<"$E2E_CHILDREN")
}

# Usage: code_texts_are FIRST SECOND EXAMPLE EXPLANATION (as children.exe
# writes them, line breaks as \r\n)
code_texts_are() {
  code_control Edit 1 && [ "$CODE_TEXT" = "$1" ] || return 1
  code_control Edit 2 && [ "$CODE_TEXT" = "$2" ] || return 1
  code_control Edit 3 && [ "$CODE_TEXT" = "$3" ] || return 1
  code_label_command && [ "$CODE_TEXT" = "$4" ]
}

code_texts_fail() {
  local seen=() i
  for i in 1 2 3; do code_control Edit "$i" && seen+=("$CODE_TEXT"); done
  code_label_command && seen+=("$CODE_TEXT")
  e2e_fail "$1: the pane shows $(printf '[%s] ' "${seen[@]}")"
}

# The chosen item of the n-th character list.
code_chosen() {
  code_control ComboBox "$1" || return 1
  awk -F'\t' -v rect="$CODE_RECT" '
    /^child=/ { hit = ($1 == "child=ComboBox" && $3 == rect); next }
    hit && /^combo=/ { print $2; exit }' <<<"$E2E_CHILDREN"
}

code_chosen_is() { [ "$(code_chosen "$1")" = "$2" ]; }

# Opens the n-th list by a click on it.
code_drop() {
  code_control ComboBox "$1" || e2e_fail "no character list $1 in the pane" || return 1
  local l t r b
  IFS=, read -r l t r b <<<"$CODE_RECT"
  xdotool mousemove $(((l + r) / 2)) $(((t + b) / 2)) click 1
}

# The dropped list's rectangle into DROPPED_RECT.
dropped_list() {
  wine "$E2E_TOOLS/children.exe" ComboLBox >"$E2E_WORK/dropped.out" 2>/dev/null || return 1
  DROPPED_RECT=$(tr -d '\r' <"$E2E_WORK/dropped.out" | sed -n 's/^window=//p')
  [ -n "$DROPPED_RECT" ]
}

# Chooses by the pointer the item at INDEX of COUNT in the n-th list.
# Usage: code_point_at LIST INDEX COUNT
code_point_at() {
  code_drop "$1" || return 1
  qs_poll 5 dropped_list || e2e_fail "list $1 did not drop down" || return 1
  local l t r b
  IFS=, read -r l t r b <<<"$DROPPED_RECT"
  e2e_screenshot "dropped$1"
  xdotool mousemove $(((l + r) / 2)) $((t + 1 + (b - t - 2) * (2 * $2 + 1) / (2 * $3))) click 1
}

CODE_START_EXPLANATION='Select 1st and 2nd char. of Command Code in the above Combo boxes, view an example Command in the Example Textbox above and an explanation of the Command here.\r\n\r\nTo start with, please select "a" as first Char and a "." (dot) as second Char of Code.'

# Chooses "w" and ";" as a person does, the first list by the keyboard and
# the second by the pointer; reads the explanations, the example and its
# text; then "g" and "." empty the example and its text.
code_pane_explains_w_semicolon() {
  PREFS_QUICK_BARE=""
  code_open || return 1
  e2e_expect_box_focus 'opening the Code And Command pane' || return 1
  pane_shot light
  code_texts_are '' '' 'Command = Command Code + Launch Name' "$CODE_START_EXPLANATION" ||
    code_texts_fail 'at the start' || return 1
  code_chosen_is 1 -1 && code_chosen_is 2 -1 || e2e_fail "a character list has a choice at the start" || return 1
  code_drop 1 || return 1
  qs_poll 5 dropped_list || e2e_fail "the first list did not drop down" || return 1
  xdotool key Down Down Down Down Down Down Down Down Return
  qs_poll 5 code_chosen_is 1 7 || e2e_fail "the first list chose $(code_chosen 1), expected 7 (\"w\")" || return 1
  qs_poll 5 code_texts_are 'Web Address (URL)' '' 'Command = Command Code + Launch Name' "$CODE_START_EXPLANATION" ||
    code_texts_fail 'after "w" alone' || return 1
  code_point_at 2 5 6 || return 1
  qs_poll 5 code_chosen_is 2 5 || e2e_fail "the second list chose $(code_chosen 2), expected 5 (\";\")" || return 1
  qs_poll 5 code_texts_are 'Web Address (URL)' 'Semicolon if after "w", adds "http://www."' "w;$CODE_SITE" \
    "Here 2nd Char \";\" (semicolon) means almost same as \":\" (colon), the difference is it substitute the text \"http://www.\" in the Command. So the complete Command will be \"http://www.$CODE_SITE\"" ||
    code_texts_fail 'after "w" and ";"' || return 1
  pane_shot example
  code_drop 1 || return 1
  qs_poll 5 dropped_list || e2e_fail "the first list did not drop down again" || return 1
  xdotool key Down Down Return
  qs_poll 5 code_chosen_is 1 9 || e2e_fail "the first list chose $(code_chosen 1), expected 9 (\"g\")" || return 1
  code_point_at 2 0 6 || return 1
  qs_poll 5 code_chosen_is 2 0 || e2e_fail "the second list chose $(code_chosen 2), expected 0 (\".\")" || return 1
  qs_poll 5 code_texts_are 'If used before "/", substitute text ".gov"' 'Dot = Predefined Launch Name' '' '' ||
    code_texts_fail 'after "g" and "."' || return 1
  # Escape in a list closes the pane; the P button then opens the
  # Preferences in front, and the C button takes the Code And Command back.
  code_drop 1 || return 1
  qs_poll 5 dropped_list || return 1
  xdotool key Escape Escape
  qs_poll 10 code_gone || e2e_fail "Escape in a list did not close the pane" || return 1
  e2e_expect_box_focus 'closing the Code And Command pane by Escape' || return 1
  code_open || return 1
  prefs_open || return 1
  e2e_expect_box_focus 'the P button over the Code And Command pane' || return 1
  prefs_click 'Color 4' Button || return 1
  qs_poll 5 prefs_theme_shown 3 || e2e_fail "\"Color 4\" shows $PREFS_SEEN" || return 1
  pane_shot prefs-dark
  code_open || return 1
  e2e_expect_box_focus 'the C button over the Preferences pane' || return 1
  pane_shot dark
  pane_click 'Code And Command' Close || return 1
  qs_poll 10 code_gone || e2e_fail "the pane's close button did not close it" || return 1
  e2e_expect_box_focus 'closing the Code And Command pane by its close button'
}

prefs_start_144() { prefs_seed 57 8 0 && dpi_start 144; }

# Both panes at 150 %, light and then dark, kept as screenshots to look at;
# every box, option and list of both panes lies inside its pane.
prefs_panes_at_150_percent() {
  local theme
  for theme in 0 3; do
    prefs_open || return 1
    [ "$theme" = 3 ] && { prefs_click 'Color 4' Button || return 1; sleep 1; prefs_shown || return 1; }
    panes_inside Preferences || return 1
    pane_shot "prefs-dpi144-theme$theme"
    code_open || return 1
    if [ "$theme" = 0 ]; then
      # "a" and ".", the longest explanation, to look at.
      code_drop 1 || return 1
      qs_poll 5 dropped_list || e2e_fail "the first list did not drop down" || return 1
      xdotool key Down Return
      code_point_at 2 0 6 || return 1
      qs_poll 5 code_texts_are 'Additional Action' 'Dot = Predefined Launch Name' 'a.CreateAppShortcut' \
        'Here 1st Char of Code "a" means the Command is for some "Additional Task". 2nd Char "." (dot) means the Launch Name (rest of the Command) is predefined in the App (not added by the user).\r\n\r\nThis Command creates a shortcut and puts an icon of "Quillstart" on the Desktop. Also creates a shortcut key for the Application : "Shift + Ctrl + L".' ||
        code_texts_fail 'after "a" and "."' || return 1
    fi
    panes_inside 'Code And Command' || return 1
    pane_shot "code-dpi144-theme$theme"
  done
  bar_click PictureMenu3 || return 1
  qs_poll 10 code_gone || e2e_fail "the bar's C button did not close the pane" || return 1
  e2e_expect_box_focus 'closing the Code And Command pane by its button on the bar'
}

# Every shown child of the pane in front lies inside the pane's window.
panes_inside() {
  pane_children "$1" || e2e_fail "the $1 pane is not in front" || return 1
  local outside
  outside=$(awk -F'\t' -v pane="$PANE_RECT" '
    BEGIN { split(pane, p, ",") }
    /^child=/ && $2 == 1 { split($3, r, ",");
      if (r[1] < p[1] || r[2] < p[2] || r[3] > p[3] || r[4] > p[4]) print $1 " " $3 " " $4 }' <<<"$E2E_CHILDREN")
  [ -z "$outside" ] || e2e_fail "in the $1 pane ($PANE_RECT) outside: $(tr '\n' '|' <<<"$outside")"
}

e2e_scenario 'Preferences: bold and 12 points act at once on the Command box, Save keeps them for the next start' \
  prefs_font_saved_for_the_next_start prefs_start_plain_light
e2e_scenario 'Preferences: an unsaved tick lasts the run only; each theme recolours the bar, an open QuickLauncher and the pane, the exit keeps it' \
  prefs_unsaved_for_the_run_themes_at_once prefs_start_light_with_a_web_item
e2e_scenario 'Preferences: Start With Windows saved writes and deletes the Run value, and is greyed on a flash drive' \
  prefs_start_with_windows prefs_start_without_autostart
e2e_scenario 'Code And Command: "w" and ";" chosen show their example and text; "g" and "." empty them' \
  code_pane_explains_w_semicolon prefs_start_light
e2e_scenario 'Preferences and Code And Command at 150 %, light and dark: every control inside its pane' \
  prefs_panes_at_150_percent prefs_start_144
