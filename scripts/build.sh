#!/usr/bin/env bash
# Configures and builds both trees: build/native (portable code, tests, benchmarks) and
# build/windows (Stayhold.exe, StayholdSetup.exe and the Windows test programs).
# A third tree, build/fuzz, holds the libFuzzer targets built with clang (not part of "all").
# A fourth, build/asan, is the native suite under AddressSanitizer, LeakSanitizer and UBSan.
# `programs` builds only the two Windows programs (and the small tool that stops the guard) in
# build/windows, for scripts/run.sh.
# Usage: scripts/build.sh [native|windows|programs|fuzz|asan|all]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
which=${1:-all}
jobs=$(nproc 2>/dev/null || echo 2)
# A compiler cache, where there is one, makes rebuilds of the four trees cheap.
launcher=()
if command -v ccache >/dev/null; then
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
fi

if [ "$which" = native ] || [ "$which" = all ]; then
  cmake -S "$root" -B "$root/build/native" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DSTAYHOLD_WERROR=ON "${launcher[@]}" >/dev/null
  cmake --build "$root/build/native" -j "$jobs"
fi
if [ "$which" = fuzz ]; then
  cmake -S "$root" -B "$root/build/fuzz" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DSTAYHOLD_FUZZ=ON "${launcher[@]}" >/dev/null
  cmake --build "$root/build/fuzz" -j "$jobs"
fi
if [ "$which" = asan ]; then
  # -O1 without debug information: sanitizers see everything, and the tree builds quickly.
  cmake -S "$root" -B "$root/build/asan" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS_DEBUG="-O1" -DSTAYHOLD_WERROR=ON -DSTAYHOLD_SANITIZE=ON "${launcher[@]}" >/dev/null
  cmake --build "$root/build/asan" -j "$jobs" --target tessel_tests stayhold_tests
fi
if [ "$which" = windows ] || [ "$which" = programs ] || [ "$which" = all ]; then
  cmake -S "$root" -B "$root/build/windows" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64-x86_64.cmake" -DSTAYHOLD_WERROR=ON "${launcher[@]}" >/dev/null
  if [ "$which" = programs ]; then
    cmake --build "$root/build/windows" -j "$jobs" --target stayhold_app stayhold_setup wintool
  else
    cmake --build "$root/build/windows" -j "$jobs"
  fi
fi
