#!/usr/bin/env bash
# Installs what is missing, builds, and opens the Print dialog on the bundled
# sample Orvan printer. Without a display it runs the dialog headless instead
# and prints the job's tickets. Arguments go to orvan-print.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -UORVAN_SUBSYSTEMS >/dev/null
cmake --build build -j2 --target orvan-print OrvanFeatures orvan_bundle
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/orvan-print "$@"
else
  echo "No display: running the dialog headless and printing its tickets." >&2
  exec build/bin/orvan-print --dump-ticket "$@"
fi
