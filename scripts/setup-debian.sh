#!/bin/sh
# Installs with apt-get what a fresh Debian machine lacks to build and test falak.
set -eu

# Qt 6 for the desktop program, and the fonts its sheets name: Amiri for the Arabic frames,
# DejaVu Sans for the Latin ones (fontconfig finds them, also on the offscreen platform).
# libxlsxwriter writes the spreadsheets; openpyxl reads them back in the tests, and poppler's
# tools render and read the printed pages.
PAKET="build-essential cmake pkg-config googletest libgtest-dev libbenchmark-dev python3
  qt6-base-dev fontconfig fonts-hosny-amiri fonts-dejavu-core
  libxlsxwriter-dev python3-openpyxl poppler-utils"

# The generator of the Earth's series reads an npm package, pinned by its lock file; without
# npm (or its registry) the byte-for-byte check of that table is skipped.
EFEMERIS="$(dirname "$0")/../tools/efemeris"
if command -v npm >/dev/null 2>&1 && [ ! -d "$EFEMERIS/node_modules" ]; then
  (cd "$EFEMERIS" && npm ci --no-audit --no-fund --silent) || echo "tools/efemeris: npm ci gagal; cek ERBumi dilewati"
fi

kurang=""
for p in $PAKET; do
  dpkg -s "$p" >/dev/null 2>&1 || kurang="$kurang $p"
done
[ -z "$kurang" ] && exit 0

if [ "$(id -u)" -eq 0 ]; then SUDO=""; else SUDO="sudo"; fi
echo "Memasang:$kurang"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
# shellcheck disable=SC2086
$SUDO apt-get install -y -qq --no-install-recommends $kurang
