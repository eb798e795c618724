#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: the normal build and
# a sanitizer (ASan + UBSan) build of the core tests, and a short run of each
# fuzz target (30 s).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/dependencias.sh
jobs=$(nproc)
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build build -j "$jobs"
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j "$jobs"
cmake -S . -B build-san -DCMAKE_BUILD_TYPE=Debug -DTRAMELO_SANITIZE=ON -DTRAMELO_DESKTOP=OFF > /dev/null
cmake --build build-san -j "$jobs" --target tramelo_core_tests
ctest --test-dir build-san --output-on-failure -j "$jobs" -R '^[A-Z]'
bash scripts/fuzz.sh 30
