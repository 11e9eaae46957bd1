#!/bin/sh
# Sets up a fresh Debian machine, builds falak and runs a real reckoning on the shipped data.
set -eu
cd "$(dirname "$0")/.."
./scripts/setup-debian.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DFALAK_BENCH=OFF
cmake --build build -j"$(nproc)"
./build/bin/falak nilai \
  'tambah;3;3;1;09 16 33 00 00 1;02 20 30 00 00 1' \
  'kali;3;3;1;00 29 07 41 00 1;00 01 58 30 00 1' \
  'alamah;2;2024;2;30;0;0;0;0;0;0;1'
