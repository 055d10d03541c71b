#!/usr/bin/env bash
# Runs one cross-built test program under Wine in a fresh prefix: run_in_prefix.sh EXE [ARGS...]
. "$(dirname "$0")/harness.sh"
harness_start "$(basename "$1" .exe)"
WINE_TIMEOUT=240 wine_exe "$@"
