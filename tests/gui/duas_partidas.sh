#!/usr/bin/env bash
# Two starts of the real program at the same instant, under Xvfb, with the
# user's settings file cut in the middle: one instance stays, with both files
# open, and the other hands its file over and ends. Closed from its menu
# (Alt+A, R) with real X events, the program stores both files as recent ones
# and keeps the cut settings file aside.
#   duas_partidas.sh PROGRAMA PASTA_DOS_EXEMPLOS
set -euo pipefail
programa=$1
exemplos=$2
raiz=$(mktemp -d)
pids=()
xvfb=""
limpa() {
    for p in "${pids[@]}"; do kill "$p" 2> /dev/null || true; done
    [ -n "$xvfb" ] && kill "$xvfb" 2> /dev/null || true
    rm -rf "$raiz"
}
trap limpa EXIT
mkdir -p "$raiz"/{bin,run,config/Tramelo,dados,casa,tmp}
chmod 700 "$raiz/run"
# A copy of its own: the program keeps its data beside a writable executable.
cp "$programa" "$raiz/bin/Tramelo"
export XDG_RUNTIME_DIR="$raiz/run" XDG_CONFIG_HOME="$raiz/config" XDG_DATA_HOME="$raiz/dados"
export HOME="$raiz/casa" TMPDIR="$raiz/tmp"
unset QT_QPA_PLATFORM
printf '{"Software\\\\Quillon\\\\Tramelo\\\\2.0\\\\System": {"Associa": {"dados": "0", "tipo": 1}}}\n' \
    > "$raiz/bin/registro-maquina.json"
printf '{\n  "Software\\\\Quillon\\\\Tramelo\\\\2.0\\\\Config": {\n    "DicasIni' \
    > "$raiz/config/Tramelo/registro-usuario.json"

exec 3< <(Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2> /dev/null & echo "pid $!")
read -r _ xvfb <&3
read -r numero <&3
export DISPLAY=":$numero"

"$raiz/bin/Tramelo" "$exemplos/agua.trl" & pids+=($!)
"$raiz/bin/Tramelo" "$exemplos/vapor.trl" & pids+=($!)

# One of the two ends by itself, with status 0, within 20 s.
vivos=2
for _ in $(seq 200); do
    vivos=0
    for p in "${pids[@]}"; do kill -0 "$p" 2> /dev/null && vivos=$((vivos + 1)); done
    [ "$vivos" -le 1 ] && break
    sleep 0.1
done
[ "$vivos" -eq 1 ] || { echo "FALHA: $vivos instâncias ficaram"; exit 1; }
for p in "${pids[@]}"; do
    if kill -0 "$p" 2> /dev/null; then primeira=$p; else wait "$p" || { echo "FALHA: a segunda partida saiu com $?"; exit 1; }; fi
done

# The main window, past its splash; then Arquivo > Sair from the keyboard.
xdotool search --sync --onlyvisible --pid "$primeira" --name 'Tramelo' > /dev/null
sleep 3
janela=$(xdotool search --onlyvisible --pid "$primeira" --name 'Tramelo' | head -n1)
xdotool windowfocus --sync "$janela"
xdotool key --delay 200 alt+a r
for _ in $(seq 100); do kill -0 "$primeira" 2> /dev/null || break; sleep 0.1; done
if kill -0 "$primeira" 2> /dev/null; then echo "FALHA: o programa não fechou pelo menu"; exit 1; fi
wait "$primeira" || true

recentes=$(cat "$raiz/bin/registro-maquina.json")
for nome in agua.trl vapor.trl; do
    grep -q "$nome" <<< "$recentes" || { echo "FALHA: $nome não estava aberto"; echo "$recentes"; exit 1; }
done
[ -f "$raiz/config/Tramelo/registro-usuario.json.danificado" ] ||
    { echo "FALHA: a configuração cortada não foi guardada à parte"; exit 1; }
echo "uma instância com agua.trl e vapor.trl; configuração cortada lida como vazia"
