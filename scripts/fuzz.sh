#!/usr/bin/env bash
# Builds the libFuzzer targets (clang++, ASan + UBSan) in build-fuzz/ and runs
# each over a copy of its seed corpus in fuzz/corpus/<target>/.
#   bash scripts/fuzz.sh [SECONDS] [TARGET...]     (default 30 s each, all five)
# TRAMELO_FUZZ_RUNS=N stops a target after N inputs; TRAMELO_FUZZ_JOBS=N runs
# N targets at once (default 2). A crash, a leak, a sanitizer report or an
# input slower than a second fails the run; the input is kept in
# build-fuzz/achados/<target>/.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos="${1:-30}"
shift || true
alvos=("$@")
[ ${#alvos[@]} -eq 0 ] && alvos=(arquivo_trl numero calculadora registro lote)
paralelos="${TRAMELO_FUZZ_JOBS:-2}"
# A small quarantine: ASan recycles it in one go, and a large one can take
# more than the second an input is allowed on a busy machine.
export ASAN_OPTIONS="${ASAN_OPTIONS:-quarantine_size_mb=16}"
lancador=()
command -v ccache > /dev/null && lancador=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-14 \
      -DTRAMELO_FUZZ=ON -DTRAMELO_DESKTOP=OFF -DTRAMELO_BENCH=OFF "${lancador[@]}" > /dev/null
cmake --build build-fuzz -j "$(nproc)" --target "${alvos[@]/%/_fuzz}"

roda() {
    local alvo=$1 corpus=build-fuzz/corpus/$1 achados=build-fuzz/achados/$1
    mkdir -p "$corpus" "$achados"
    cp -n fuzz/corpus/"$alvo"/* "$corpus"/ 2> /dev/null || true
    local limite=()
    [ -n "${TRAMELO_FUZZ_RUNS:-}" ] && limite=(-runs="$TRAMELO_FUZZ_RUNS")
    if ./build-fuzz/"$alvo"_fuzz "$corpus" -max_total_time="$segundos" -timeout=1 \
           -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$achados"/ "${limite[@]}" \
           > build-fuzz/"$alvo".log 2>&1; then
        echo "fuzz $alvo: $(grep -o 'stat::number_of_executed_units: *[0-9]*' build-fuzz/"$alvo".log | grep -o '[0-9]*$') entradas em $(grep -o 'Done [0-9]* runs in [0-9]* second' build-fuzz/"$alvo".log | grep -o 'in [0-9]*' | grep -o '[0-9]*') s, nenhuma falha"
    else
        echo "fuzz $alvo: FALHOU (build-fuzz/$alvo.log, entrada em $achados/)"
        tail -n 40 build-fuzz/"$alvo".log
        return 1
    fi
}

falhas=0
pids=()
for alvo in "${alvos[@]}"; do
    roda "$alvo" &
    pids+=($!)
    if [ ${#pids[@]} -ge "$paralelos" ]; then
        wait "${pids[0]}" || falhas=$((falhas + 1))
        pids=("${pids[@]:1}")
    fi
done
for p in "${pids[@]}"; do wait "$p" || falhas=$((falhas + 1)); done
[ "$falhas" -eq 0 ]
