#!/usr/bin/env bash
# tramelo-calc over N copies of a sample in one process, against cat reading
# the same files: wall time of each (best of 3) and the tool's peak memory.
#   bash scripts/medir-lote.sh [build/tramelo-calc] [N]
set -euo pipefail
cd "$(dirname "$0")/.."
calc=${1:-build/tramelo-calc}
n=${2:-1000}
pasta=$(mktemp -d)
trap 'rm -rf "$pasta"' EXIT
for i in $(seq -w 1 "$n"); do cp data/exemplos/agua.trl "$pasta/agua$i.trl"; done
export XDG_DATA_HOME=$pasta/dados XDG_CONFIG_HOME=$pasta/config
melhor() {
  local m=""
  for _ in 1 2 3; do
    local t0 t1
    t0=$(date +%s%N); "$@" > /dev/null 2>&1 || true; t1=$(date +%s%N)
    local d=$(( (t1 - t0) / 1000 ))
    if [ -z "$m" ] || [ "$d" -lt "$m" ]; then m=$d; fi
  done
  echo "$m"
}
cat_us=$(melhor cat "$pasta"/*.trl)
calc_us=$(melhor "$calc" "$pasta"/*.trl)
pico_kib=$(/usr/bin/time -f %M -o "$pasta/pico" "$calc" "$pasta"/*.trl > /dev/null 2>&1; cat "$pasta/pico")
echo "arquivos: $n"
echo "cat: $cat_us us"
echo "tramelo-calc: $calc_us us ($(awk "BEGIN{printf \"%.2f\", $calc_us/$cat_us}") x cat)"
echo "pico de memoria: $pico_kib KiB"
