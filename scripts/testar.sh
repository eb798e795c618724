#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test:
#  1. the normal build, warnings as errors: unit, golden-report, window tests,
#     the journeys of real input under Xvfb, the Debian package's check;
#  2. the whole program again under ASan and UBSan: core and window tests and
#     a minute of random input on the real program;
#  3. a short run (30 s) of each fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/dependencias.sh
jobs=$(nproc)
lancador=()
command -v ccache > /dev/null && lancador=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
inicio=$SECONDS

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_COMPILE_WARNING_AS_ERROR=ON \
      "${lancador[@]}" > /dev/null
cmake --build build -j "$jobs"
# Every test but the journeys runs once: a failure fails the run.
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j "$jobs" -LE jornada
# A journey that fails is run once more: the window manager's focus under a
# loaded machine is not the program's; a second failure fails the run.
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j "$jobs" -L jornada \
      --repeat until-pass:2
echo "== normal build and tests: $((SECONDS - inicio)) s"

# Qt's own allocations are not ours to chase: leaks are left out, every other
# report ends the run.
export ASAN_OPTIONS="detect_leaks=0:abort_on_error=0"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
cmake -S . -B build-san -DCMAKE_BUILD_TYPE=Debug -DTRAMELO_SANITIZE=ON -DTRAMELO_BENCH=OFF \
      -DCMAKE_COMPILE_WARNING_AS_ERROR=ON "${lancador[@]}" > /dev/null
cmake --build build-san -j "$jobs" --target tramelo_core_tests tramelo_gui_tests Tramelo \
      tramelo-calc tramelo-aleatorio tramelo_jornadas
QT_QPA_PLATFORM=offscreen ctest --test-dir build-san --output-on-failure -j "$jobs" \
      -LE 'jornada|pacote'
echo "== sanitizer build and tests: $((SECONDS - inicio)) s"
unset ASAN_OPTIONS UBSAN_OPTIONS

bash scripts/fuzz.sh 30
echo "== all: $((SECONDS - inicio)) s"
