#!/usr/bin/env bash
# Installs the Debian 12 packages that building and testing Quillstart need:
# the native and mingw-w64 compilers, CMake, Ninja, GoogleTest, clang with its
# runtime libraries (libFuzzer and AddressSanitizer live in libclang-rt-14-dev,
# which clang only recommends), Wine, and the X tools that drive the program
# under Wine. Does nothing, silently, when all
# of them are present.
set -euo pipefail

packages=(
  cmake ninja-build g++ libgtest-dev googletest
  g++-mingw-w64-x86-64-posix
  clang libclang-rt-14-dev
  wine wine64
  xvfb xdotool x11-apps imagemagick openbox
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if command -v sudo >/dev/null; then
    as_root=(sudo)
  else
    echo "install-deps: missing packages (${missing[*]}) and not root; install them or run as root" >&2
    exit 1
  fi
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -y -qq "${missing[@]}" >/dev/null
