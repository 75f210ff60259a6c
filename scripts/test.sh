#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
# -U: a developer's subset of subsystems never leaks into the full run.
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -UORVAN_SUBSYSTEMS >/dev/null
cmake --build build -j2
ctest --test-dir build --output-on-failure -j2 --timeout 300
