#!/bin/sh
# Sets up a fresh Debian machine, builds falak and runs a real reckoning on the shipped data:
# the ijtima' at the end of Sya'ban 1445 H and the hilal of Ramadan at Pasuruan, by Sullam
# al-Nairoin.
set -eu
cd "$(dirname "$0")/.."
./scripts/setup-debian.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DFALAK_BENCH=OFF
cmake --build build -j"$(nproc)"
./build/bin/falak hisab --kitab SN --tahun 1445 --bulan 8 --markaz Pasuruan
