#!/usr/bin/env bash
# Builds Quillstart twice from the one source tree:
#   build/native  the portable library, unit tests and benchmarks for Linux
#   build/win     the static Quillstart.exe (mingw-w64, Release), the Windows
#                 build of the unit tests and the end-to-end tools
# Usage: scripts/build.sh [native|win|all]   (default: all)
# QS_NATIVE_BUILD and QS_WIN_BUILD name other build folders.
set -euo pipefail
cd "$(dirname "$0")/.."
native_dir=${QS_NATIVE_BUILD:-build/native}
win_dir=${QS_WIN_BUILD:-build/win}

which_builds=${1:-all}

build_native() {
  [ -f "$native_dir/build.ninja" ] || cmake -S . -B "$native_dir" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
  ninja -C "$native_dir" -j2
}

build_win() {
  [ -f "$win_dir/build.ninja" ] || cmake -S . -B "$win_dir" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DCMAKE_BUILD_TYPE=Release >/dev/null
  ninja -C "$win_dir" -j2
}

case "$which_builds" in
  native) build_native ;;
  win) build_win ;;
  all) build_native && build_win ;;
  *) echo "usage: $0 [native|win|all]" >&2; exit 2 ;;
esac
