#!/usr/bin/env bash
# Runs the end-to-end suite against the real Quillstart.exe under Wine in a
# private Xvfb display. Prints PASS/FAIL per scenario and "N passed,
# M failed"; screenshots go to build/e2e-artifacts/. Exit status 0 only when
# every scenario passed.
#
# Environment (all optional):
#   QS_WIN_BUILD   the cross build folder (build/win)
#   E2E_EXE        Quillstart.exe to test ($QS_WIN_BUILD/win32/Quillstart.exe)
#   E2E_TOOLS      folder of recorder.exe, probe.exe, winlist.exe,
#                  drivetype.exe, endtasks.exe ($QS_WIN_BUILD/tests/tools)
#   E2E_RESULT     file that receives "<passed> <failed>"
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
root=$PWD

win_build=${QS_WIN_BUILD:-build/win}
E2E_EXE=$(realpath -m "${E2E_EXE:-$win_build/win32/Quillstart.exe}")
E2E_TOOLS=$(realpath -m "${E2E_TOOLS:-$win_build/tests/tools}")
E2E_ARTIFACTS=$root/build/e2e-artifacts
E2E_WORK=$(mktemp -d /tmp/quillstart-e2e.XXXXXX)
# Large enough for the bar at 200 % (the start-up check wants 13000 x 9600 twips).
export QS_SCREEN=${QS_SCREEN:-1920x1440}
E2E_TEXT=""
E2E_PASSED=0
E2E_FAILED=0

# shellcheck source=../../scripts/session.sh
source scripts/session.sh
# shellcheck source=lib.sh
source tests/e2e/lib.sh
# shellcheck source=data.sh
source tests/e2e/data.sh
# shellcheck source=scenarios_web.sh
source tests/e2e/scenarios_web.sh
# shellcheck source=scenarios_shell.sh
source tests/e2e/scenarios_shell.sh
# shellcheck source=scenarios_keys.sh
source tests/e2e/scenarios_keys.sh
# shellcheck source=scenarios_dialog.sh
source tests/e2e/scenarios_dialog.sh
# shellcheck source=scenarios_lists.sh
source tests/e2e/scenarios_lists.sh
# shellcheck source=scenarios_start.sh
source tests/e2e/scenarios_start.sh
# shellcheck source=scenarios_flash.sh
source tests/e2e/scenarios_flash.sh
# shellcheck source=scenarios_dpi.sh
source tests/e2e/scenarios_dpi.sh
# shellcheck source=scenarios_damaged.sh
source tests/e2e/scenarios_damaged.sh
# shellcheck source=scenarios_desktop.sh
source tests/e2e/scenarios_desktop.sh
# shellcheck source=scenarios_bar.sh
source tests/e2e/scenarios_bar.sh
# shellcheck source=scenarios_browse.sh
source tests/e2e/scenarios_browse.sh
# shellcheck source=scenarios_themes.sh
source tests/e2e/scenarios_themes.sh
# shellcheck source=scenarios_focus.sh
source tests/e2e/scenarios_focus.sh
# shellcheck source=scenarios_choose.sh
source tests/e2e/scenarios_choose.sh
# shellcheck source=scenarios_prefs.sh
source tests/e2e/scenarios_prefs.sh
# shellcheck source=scenarios_quick.sh
source tests/e2e/scenarios_quick.sh
# shellcheck source=scenarios_pointer.sh
source tests/e2e/scenarios_pointer.sh
# shellcheck source=scenarios_help.sh
source tests/e2e/scenarios_help.sh

trap e2e_end_session EXIT

rm -rf "$E2E_ARTIFACTS"
mkdir -p "$E2E_ARTIFACTS"

setup_error=""
for f in "$E2E_EXE" "$E2E_TOOLS/recorder.exe" "$E2E_TOOLS/probe.exe" "$E2E_TOOLS/winlist.exe" "$E2E_TOOLS/drivetype.exe" \
  "$E2E_TOOLS/endtasks.exe" "$E2E_TOOLS/closebar.exe" "$E2E_TOOLS/children.exe" "$E2E_TOOLS/bartool.exe" "$E2E_TOOLS/focus.exe" "$E2E_TOOLS/workingset.exe"; do
  [ -f "$f" ] || setup_error="missing $f (build with scripts/build.sh win)"
done
if [ -z "$setup_error" ]; then
  qs_start_display "$E2E_WORK" || setup_error="no X display"
fi
if [ -z "$setup_error" ]; then
  echo "e2e: display $DISPLAY, prefix $E2E_WORK/prefix"
  e2e_setup_prefix || setup_error="prefix: $E2E_REASON"
fi

if [ -n "$setup_error" ]; then
  for name in "${E2E_SCENARIOS[@]}"; do echo "FAIL  $name: $setup_error"; done
  E2E_FAILED=${#E2E_SCENARIOS[@]}
else
  e2e_run_all
fi

echo "$E2E_PASSED passed, $E2E_FAILED failed"
[ -n "${E2E_RESULT:-}" ] && echo "$E2E_PASSED $E2E_FAILED" >"$E2E_RESULT"
[ "$E2E_FAILED" -eq 0 ]
