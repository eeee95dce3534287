# Theme-switch benchmark: what a click on one of the Preferences pane's seven
# colour options costs in the real Quillstart.exe under Wine, with every
# window that can stand open at once on screen (the bar, the QuickLauncher
# showing ten items and frmChoose with the Preferences pane in front; the Add
# Item and Open panes have been shown and hidden, so their window exists and
# is recoloured too). Each click is timed from the click until every shown
# window of the program has painted what it changed (bench/panetool.exe
# paint-click):
#   first     the first switch to each of the six themes the program did not
#             start in (its pictures drawn at this DPI for the first time)
#   repeated  the median of three more rounds through all seven themes
# and the working set at start and after the seven themes, at 100 % and at
# 200 %. A figure, never a pass/fail test; one frame is 16 ms.
# Usage: bash bench/themes.sh
set -euo pipefail
cd "$(dirname "$0")/.."

export QS_SCREEN=${QS_SCREEN:-1920x1440}
bash scripts/install-deps.sh
bash scripts/build.sh win

# shellcheck source=wine_bench.sh
source bench/wine_bench.sh

set_dpi() {
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >"$work/dpi.out" 2>&1
}

theme_option() { echo "Color $(($1 + 1))"; }

for dpi in 96 192; do
  set_dpi "$dpi"
  bench_start ten
  start_mb=$(memory_mb)
  timed Quillstart 'Add Items To Launch List' >/dev/null
  timed Quillstart 'Browse To Open File | Run Program' >/dev/null
  timed Quillstart 'Browse To Open File | Run Program' >/dev/null
  timed Quillstart 'Show|Hide QuickLauncher' QuickLaunch >/dev/null
  timed Quillstart 'Show|Hide    Preferences Window' Preferences >/dev/null
  windows_mb=$(memory_mb)
  first=()
  for t in 1 2 3 4 5 6; do
    first+=("$(timed --painted Preferences "$(theme_option "$t")")")
  done
  timed --painted Preferences "$(theme_option 0)" >/dev/null
  seven_mb=$(memory_mb)
  repeated=()
  for _ in 1 2 3; do
    for t in 1 2 3 4 5 6 0; do
      repeated+=("$(timed --painted Preferences "$(theme_option "$t")")")
    done
  done
  bench_stop
  printf 'themes at %s %%: first switch to each theme (ms): %s\n' "$((dpi * 100 / 96))" "${first[*]}"
  printf 'themes at %s %%: repeated switch, median of %s (ms): %s (fastest %s, slowest %s)\n' "$((dpi * 100 / 96))" \
    "${#repeated[@]}" "$(printf '%s\n' "${repeated[@]}" | median)" \
    "$(printf '%s\n' "${repeated[@]}" | sort -g | head -1)" "$(printf '%s\n' "${repeated[@]}" | sort -g | tail -1)"
  printf 'themes at %s %%: working set at start %s MB, with the windows open %s MB, after the seven themes %s MB\n' \
    "$((dpi * 100 / 96))" "$start_mb" "$windows_mb" "$seven_mb"
done
set_dpi 96
