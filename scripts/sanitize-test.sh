#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer (the
# "sanitize" preset, in build-sanitize/) and runs every test there, leak
# checks included.
set -euo pipefail
cd "$(dirname "$0")/.."
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset sanitize -UORVAN_SUBSYSTEMS "${launcher[@]}" >/dev/null
cmake --build build-sanitize -j2
ctest --test-dir build-sanitize --output-on-failure -j2 --timeout 600
