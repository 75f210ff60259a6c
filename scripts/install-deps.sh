#!/usr/bin/env bash
# Installs every Debian 12 package this project needs to build, test, benchmark
# and run. Idempotent: quiet and quick when everything is already there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config clang clang-format libclang-rt-14-dev
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  libqt6svg6
  libcups2-dev cups cups-client cups-ipp-utils cups-filters dbus-daemon
  libcairo2-dev libharfbuzz-dev libfreetype-dev libfontconfig-dev
  libpoppler-qt6-dev libqpdf-dev
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  ghostscript poppler-utils
  fonts-liberation fonts-dejavu-core fonts-droid-fallback
  lcdf-typetools hyperfine
  xvfb xauth
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
