#!/usr/bin/env bash
# Builds Tramelo, runs it under Xvfb and writes PNG pictures of its windows
# to capturas/ (or the folder given).
set -euo pipefail
cd "$(dirname "$0")/.."
saida="${1:-capturas}"
bash scripts/dependencias.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build build -j "$(nproc)" --target tramelo-capturas
tela=:$((90 + RANDOM % 9))
Xvfb "$tela" -screen 0 1280x1024x24 -nolisten tcp > /dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null || true' EXIT
sleep 1
dados=$(mktemp -d)
DISPLAY="$tela" XDG_DATA_HOME="$dados" XDG_CONFIG_HOME="$dados" ./build/tramelo-capturas "$saida"
rm -rf "$dados"
