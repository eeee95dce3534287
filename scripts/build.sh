#!/usr/bin/env bash
# Builds Quillstart twice from the one source tree:
#   build/native  the portable library, unit tests and benchmarks for Linux
#   build/win     the static Quillstart.exe (mingw-w64, Release), the Windows
#                 build of the unit tests and the end-to-end tools
# Usage: scripts/build.sh [native|win|all]   (default: all)
set -euo pipefail
cd "$(dirname "$0")/.."

which_builds=${1:-all}

build_native() {
  [ -f build/native/build.ninja ] || cmake -S . -B build/native -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
  ninja -C build/native -j2
}

build_win() {
  [ -f build/win/build.ninja ] || cmake -S . -B build/win -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DCMAKE_BUILD_TYPE=Release >/dev/null
  ninja -C build/win -j2
}

case "$which_builds" in
  native) build_native ;;
  win) build_win ;;
  all) build_native && build_win ;;
  *) echo "usage: $0 [native|win|all]" >&2; exit 2 ;;
esac
