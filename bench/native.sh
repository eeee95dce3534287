#!/usr/bin/env bash
# Builds the native configuration (scripts/build.sh native) and runs the
# benchmarks of the portable program over the test system:
#   bench_list_store  load and save of the Launch List at 5 groups x 32,767
#                     items, one auto-fill keystroke with those lists, and
#                     start-up to a loaded store, on a fixed disk and on a
#                     flash drive
#   bench_autofill    one auto-fill keystroke with 32,767 names in a group
#                     against a scan from the top of the list
#   bench_bar         picture updates of the bar's hover poll that reach a
#                     window, pointer away and resting on a button, and the
#                     time of a theme switch
# QS_NATIVE_BUILD names another build folder than build/native.
set -euo pipefail
cd "$(dirname "$0")/.."
native_dir=${QS_NATIVE_BUILD:-build/native}
bash scripts/build.sh native >/dev/null
echo "== Launch List store (bench_list_store)"
"$native_dir/bench/bench_list_store"
echo
echo "== auto-fill (bench_autofill)"
"$native_dir/bench/bench_autofill"
echo
echo "== the bar (bench_bar)"
"$native_dir/bench/bench_bar"
