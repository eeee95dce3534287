# shellcheck shell=bash
# The bar in each of the seven themes: started with the saved theme number,
# it shows the theme's form colour in the gap between its round-button strip
# and its Command strip, and it takes a Command. A crop of each bar is kept
# for the side-by-side comparison of the themes.

# The form colour of each theme, as the screen shows it (RRGGBB).
THEME_FORM_COLORS=(c0c0c0 e6e6e6 965569 505050 1e1ea0 5b8494 646432)

theme_start() {
  e2e_seed_family C
  e2e_seed_set "$(e2e_drive_dir C)/Morvane/Morvane Apps/Quillstart/Set.Morvane" -1 57 "$1"
  e2e_start_quillstart
}

# The colour of one screen pixel as RRGGBB.
screen_pixel() {
  import -window root -crop "1x1+$1+$2" +repage -depth 8 txt:- 2>/dev/null | sed -n 's/.*#\([0-9A-Fa-f]\{6\}\).*/\1/p' | tr 'A-F' 'a-f'
}

# Usage: theme_shows THEME
theme_shows() {
  local theme=$1 id x y width height expected seen
  id=$(xdotool search --onlyvisible --name '^Quillstart$' | head -1)
  eval "$(xdotool getwindowgeometry --shell "$id")"
  x=$((X + 36))
  y=$((Y + 11))
  expected=${THEME_FORM_COLORS[$theme]}
  import -window root -crop "${WIDTH}x${HEIGHT}+${X}+${Y}" +repage \
    "$E2E_ARTIFACTS/$E2E_SHOT_PREFIX-theme$theme-bar.png" >/dev/null 2>&1 || true
  seen=$(screen_pixel "$x" "$y")
  [ "$seen" = "$expected" ] || e2e_fail "theme $theme: the gap between the strips shows #$seen, expected #$expected" ||
    return 1
  e2e_command 'w;example.org' || return 1
  e2e_wait_launch '"http://www.example.org"'
}

for theme in 0 1 2 3 4 5 6; do
  eval "theme_start_$theme() { theme_start $theme; }"
  eval "bar_in_theme_$theme() { theme_shows $theme; }"
  e2e_scenario "the bar in theme $theme (\"Color $((theme + 1))\") shows its form colour and takes Commands" \
    "bar_in_theme_$theme" "theme_start_$theme"
done
