#!/usr/bin/env bash
# Configures and builds both trees: build/native (portable code, tests, benchmarks) and
# build/windows (Stayhold.exe, StayholdSetup.exe and the Windows test programs).
# Usage: scripts/build.sh [native|windows|all]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
which=${1:-all}
jobs=$(nproc 2>/dev/null || echo 2)

if [ "$which" = native ] || [ "$which" = all ]; then
  cmake -S "$root" -B "$root/build/native" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DSTAYHOLD_WERROR=ON >/dev/null
  cmake --build "$root/build/native" -j "$jobs"
fi
if [ "$which" = windows ] || [ "$which" = all ]; then
  cmake -S "$root" -B "$root/build/windows" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64-x86_64.cmake" -DSTAYHOLD_WERROR=ON >/dev/null
  cmake --build "$root/build/windows" -j "$jobs"
fi
