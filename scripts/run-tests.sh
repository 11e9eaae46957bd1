#!/bin/sh
# Sets up a fresh Debian machine, builds falak in debug with AddressSanitizer and UBSan,
# and runs every test.
set -eu
cd "$(dirname "$0")/.."
./scripts/setup-debian.sh
cmake -S . -B build-debug -DCMAKE_BUILD_TYPE=Debug -DFALAK_SANITIZE=ON -DFALAK_BENCH=OFF
cmake --build build-debug -j"$(nproc)"
ctest --test-dir build-debug --output-on-failure -j"$(nproc)"
