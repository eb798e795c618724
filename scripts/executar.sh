#!/usr/bin/env bash
# Installs what is missing, builds, and runs Tramelo: the desktop program
# when a display is available, otherwise the command-line tool on the sample
# calculations (or on the files given).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/dependencias.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build build -j "$(nproc)" --target Tramelo tramelo-calc
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec ./build/Tramelo "$@"
fi
echo "Tramelo: nenhuma tela disponível (DISPLAY não definido)." >&2
echo "Usando a ferramenta de linha de comando: build/tramelo-calc [--json] [--sim] ARQUIVO.trl..." >&2
if [ $# -gt 0 ]; then
  exec ./build/tramelo-calc "$@"
fi
exec ./build/tramelo-calc data/exemplos/*.trl
