#!/usr/bin/env bash
# Builds Quillstart from the one source tree:
#   build/native  the portable library, unit tests and benchmarks for Linux
#   build/win     the static Quillstart.exe (mingw-w64, Release), the Windows
#                 build of the unit tests and the end-to-end tools
#   build/fuzz    the libFuzzer targets (clang, AddressSanitizer and
#                 UndefinedBehaviorSanitizer), made only when asked for by
#                 name: the fuzz level of the test command and
#                 tests/fuzz/run_fuzz.sh build it themselves
# Usage: scripts/build.sh [native|win|fuzz|all]   (default: all = native + win)
# QS_NATIVE_BUILD, QS_WIN_BUILD and QS_FUZZ_BUILD name other build folders.
set -euo pipefail
cd "$(dirname "$0")/.."
native_dir=${QS_NATIVE_BUILD:-build/native}
win_dir=${QS_WIN_BUILD:-build/win}
fuzz_dir=${QS_FUZZ_BUILD:-build/fuzz}

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

build_fuzz() {
  [ -f "$fuzz_dir/build.ninja" ] || cmake -S . -B "$fuzz_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ -DQS_BUILD_FUZZ=ON -DQS_BUILD_TESTS=OFF -DQS_BUILD_BENCH=OFF >/dev/null
  ninja -C "$fuzz_dir" -j2 fuzz_record_reader fuzz_list_reader fuzz_family_readers fuzz_command
}

case "$which_builds" in
  native) build_native ;;
  win) build_win ;;
  fuzz) build_fuzz ;;
  all) build_native && build_win ;;
  *) echo "usage: $0 [native|win|fuzz|all]" >&2; exit 2 ;;
esac
