#!/usr/bin/env bash
# Random input on the real program for a long time, on a display of its own.
#   bash scripts/aleatorio.sh [SEMENTE] [MINUTOS] [release|san]
# (defaults: seed 1, 10 minutes, the release build). The sanitizer build is
# build-san/, made as scripts/testar.sh makes it. Exit status 1 when the
# program fell, hung, or left a settings file that doesn't read; the report
# gives the seed and the last events, to replay.
set -euo pipefail
cd "$(dirname "$0")/.."
semente="${1:-1}"
minutos="${2:-10}"
tipo="${3:-release}"
lancador=()
command -v ccache > /dev/null && lancador=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
if [ "$tipo" = san ]; then
    pasta=build-san
    cmake -S . -B "$pasta" -DCMAKE_BUILD_TYPE=Debug -DTRAMELO_SANITIZE=ON -DTRAMELO_BENCH=OFF \
          "${lancador[@]}" > /dev/null
    export ASAN_OPTIONS="detect_leaks=0:exitcode=86"
    export UBSAN_OPTIONS="halt_on_error=1:exitcode=87:print_stacktrace=1"
else
    pasta=build
    cmake -S . -B "$pasta" -DCMAKE_BUILD_TYPE=RelWithDebInfo "${lancador[@]}" > /dev/null
fi
cmake --build "$pasta" -j "$(nproc)" --target tramelo-aleatorio Tramelo > /dev/null
exec "$pasta/tramelo-aleatorio" --semente "$semente" --segundos "$((minutos * 60))"
