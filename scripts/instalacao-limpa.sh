#!/usr/bin/env bash
# Installs the Debian package on a clean Debian 12 and checks it as a user
# would: a bookworm system made by debootstrap from the Debian mirror this
# machine's apt already uses, then `apt-get install ./tramelo_*.deb` in it,
# then, as a plain user under Xvfb, the menu entry's command starts the
# program, a .trl file opened through xdg-open opens in it, and the user's
# data lands in the XDG folders.
#   sudo bash scripts/instalacao-limpa.sh [tramelo_X_arch.deb]
#   bash scripts/instalacao-limpa.sh --espelho    # only says which mirror
# Without a package it builds one from build/. The untouched system is kept
# as build/limpa/bookworm.tar.gz, so a second run starts clean without
# fetching it again; TRAMELO_ESPELHO chooses another mirror, and
# TRAMELO_APT_ETC another folder of apt sources than /etc/apt.
set -euo pipefail
cd "$(dirname "$0")/.."

# The first source of bookworm packages in apt's own order: sources.list,
# then sources.list.d, one-line ".list" files and deb822 ".sources" files
# alike; comments, "deb-src" and disabled stanzas don't count, nor a suite
# other than bookworm (its security and updates archives, other vendors).
espelho_das_fontes() {
  local etc=${TRAMELO_APT_ETC:-/etc/apt} f uri
  local LC_ALL=C
  for f in "$etc/sources.list" "$etc"/sources.list.d/*; do
    [ -f "$f" ] || continue
    case "$f" in
      */sources.list | *.list)
        uri=$(awk '{ sub(/#.*/, "") }
             $1 == "deb" {
               i = 2
               if ($i ~ /^\[/) { while (i < NF && $i !~ /\]$/) i++; i++ }
               if ($(i + 1) == "bookworm" && $i ~ /^(https?|ftp|file):/) { print $i; exit }
             }' "$f") ;;
      *.sources)
        uri=$(awk 'BEGIN { RS = ""; FS = "\n" }
             {
               delete campo; nome = ""
               for (k = 1; k <= NF; k++) {
                 if ($k ~ /^[ \t]*#/) continue
                 if ($k ~ /^[ \t]/) { if (nome != "") campo[nome] = campo[nome] " " $k; continue }
                 p = index($k, ":")
                 if (p == 0) continue
                 nome = tolower(substr($k, 1, p - 1))
                 campo[nome] = substr($k, p + 1)
               }
               if (tolower(campo["enabled"]) ~ /^[ \t]*no[ \t]*$/) next
               if ((" " campo["types"] " ") !~ /[ \t]deb[ \t]/) next
               if ((" " campo["suites"] " ") !~ /[ \t]bookworm[ \t]/) next
               n = split(campo["uris"], uri, /[ \t]+/)
               for (j = 1; j <= n; j++)
                 if (uri[j] ~ /^(https?|ftp|file):/) { print uri[j]; exit }
             }' "$f") ;;
      *) uri= ;;
    esac
    if [ -n "$uri" ]; then
      echo "$uri"
      return 0
    fi
  done
}

if [ "${1:-}" = "--espelho" ]; then
  espelho=${TRAMELO_ESPELHO:-$(espelho_das_fontes)}
  [ -n "$espelho" ] || { echo "instalacao-limpa: nenhuma fonte de bookworm nas fontes do apt" >&2; exit 1; }
  echo "$espelho"
  exit 0
fi
[ "$(id -u)" -eq 0 ] || { echo "instalacao-limpa: precisa de root (debootstrap e chroot)" >&2; exit 2; }
espelho=${TRAMELO_ESPELHO:-$(espelho_das_fontes)}
[ -n "$espelho" ] || { echo "instalacao-limpa: nenhuma fonte de bookworm nas fontes do apt (${TRAMELO_APT_ETC:-/etc/apt}); defina TRAMELO_ESPELHO" >&2; exit 2; }
trabalho=$PWD/build/limpa
mkdir -p "$trabalho"

deb=${1:-}
if [ -z "$deb" ]; then
  bash scripts/dependencias.sh
  cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
  cmake --build build -j "$(nproc)" --target Tramelo tramelo-calc
  (cd build && cpack -G DEB -B "$trabalho/pacote" > /dev/null)
  deb=$(ls "$trabalho"/pacote/tramelo_*.deb)
fi
deb=$(readlink -f "$deb")
echo "== pacote: $(basename "$deb")"

base=$trabalho/bookworm.tar.gz
if [ ! -f "$base" ]; then
  echo "== debootstrap bookworm ($espelho)"
  rm -rf "$trabalho/base"
  inicio=$SECONDS
  debootstrap --variant=minbase bookworm "$trabalho/base" "$espelho" > "$trabalho/debootstrap.log" 2>&1 ||
    { tail -20 "$trabalho/debootstrap.log" >&2; echo "debootstrap falhou" >&2; exit 1; }
  tar -C "$trabalho/base" -czf "$base" .
  rm -rf "$trabalho/base"
  echo "   feito em $((SECONDS - inicio)) s"
fi

raiz=$trabalho/raiz
desmonta() {
  for m in dev/pts dev proc sys; do mountpoint -q "$raiz/$m" && umount -l "$raiz/$m"; done
  return 0
}
trap desmonta EXIT
desmonta
rm -rf "$raiz"
mkdir -p "$raiz"
tar -C "$raiz" -xzf "$base"
mount -t proc proc "$raiz/proc"
mount -t sysfs sys "$raiz/sys"
mount --bind /dev "$raiz/dev"
mount --bind /dev/pts "$raiz/dev/pts"
cp /etc/resolv.conf "$raiz/etc/resolv.conf"
cp "$deb" "$raiz/tmp/"
cp data/exemplos/agua.trl "$raiz/tmp/agua.trl"
no() { chroot "$raiz" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive LANG=C.UTF-8 "$@"; }

echo "== apt-get install ./$(basename "$deb") num Debian 12 limpo"
no apt-get update -qq
no bash -c "cd /tmp && apt-get install -y -q ./$(basename "$deb")" > "$trabalho/apt.log" 2>&1 ||
  { tail -30 "$trabalho/apt.log" >&2; exit 1; }
grep -E '^(Setting up|Configurando) ' "$trabalho/apt.log" | wc -l | sed 's/^/   pacotes configurados: /'
no dpkg -s tramelo | grep -E '^(Status|Version|Depends):' | sed 's/^/   /'

# What a desktop session has beside the program: an X server to run it on,
# the tools a file manager opens files with, and the tools this check uses.
no apt-get install -y -q --no-install-recommends xvfb xauth xdotool x11-utils xdg-utils \
  libfile-mimeinfo-perl shared-mime-info desktop-file-utils > "$trabalho/apt-x.log" 2>&1 ||
  { tail -30 "$trabalho/apt-x.log" >&2; exit 1; }
no useradd -m -s /bin/bash engenheiro
cp data/exemplos/agua.trl "$raiz/home/engenheiro/água.trl"
no chown engenheiro: /home/engenheiro/água.trl
touch "$raiz/tmp/marca"

falhas=0
confere() { if eval "$2"; then echo "   ok: $1"; else echo "   FALHA: $1"; falhas=$((falhas + 1)); fi; }

# Everything below runs as the plain user, with the session a desktop gives.
cat > "$raiz/tmp/sessao.sh" <<'SESSAO'
set -u
export HOME=/home/engenheiro USER=engenheiro LANG=C.UTF-8 DISPLAY=:7
mkdir -p /tmp/tela
Xvfb :7 -screen 0 1280x1024x24 -fbdir /tmp/tela -nolisten tcp > /tmp/xvfb.log 2>&1 &
xvfb=$!
for _ in $(seq 50); do xdpyinfo > /dev/null 2>&1 && break; sleep 0.2; done
espera_janela() { # name pattern, seconds
  for _ in $(seq $(($2 * 5))); do xdotool search --onlyvisible --name "$1" > /dev/null 2>&1 && return 0; sleep 0.2; done
  return 1
}
# Ends the program as a user does, with "Sair" on the toolbar, so that it
# stores its settings; a program that doesn't end is stopped.
fecha() { # pid
  local w
  w=$(xdotool search --onlyvisible --pid "$1" --name '^Tramelo' 2> /dev/null | head -1)
  [ -n "$w" ] && xdotool mousemove --window "$w" 180 48 click 1
  for _ in $(seq 50); do kill -0 "$1" 2> /dev/null || { echo "fim: Sair encerrou o programa"; return 0; }; sleep 0.2; done
  echo "fim: o programa não terminou pelo botão Sair"
  kill "$1"
}
desktop=/usr/share/applications/br.com.quillon.Tramelo.desktop
comando=$(sed -n 's/^Exec=//p' "$desktop" | sed 's/ *%[fFuU]//')
echo "menu: Exec=$(sed -n 's/^Exec=//p' "$desktop")"
$comando > /tmp/menu.log 2>&1 &
programa=$!
if espera_janela '^Tramelo' 20; then echo "menu: janela $(xdotool search --onlyvisible --name '^Tramelo' getwindowname | head -1)"; else echo "menu: sem janela"; fi
espera_janela '^Dica do dia$' 10 && echo "menu: janela Dica do dia"
sleep 2
cp /tmp/tela/Xvfb_screen0 /tmp/menu.xwd
fecha "$programa"
wait "$programa" 2> /dev/null
echo "mime: $(xdg-mime query filetype "$HOME/água.trl")"
echo "padrão: $(xdg-mime query default application/x-tramelo)"
xdg-open "$HOME/água.trl" > /tmp/xdg-open.log 2>&1 &
# The calculation is a window inside the frame: the frame's process tells
# which file it was started on.
aberto=
for _ in $(seq 100); do
  for p in $(xdotool search --onlyvisible --name '^Tramelo' getwindowpid %@ 2> /dev/null); do
    tr '\0' ' ' < "/proc/$p/cmdline" | grep -q 'água.trl' && aberto=$p
  done
  [ -n "$aberto" ] && break
  sleep 0.2
done
if [ -n "$aberto" ]; then
  echo "xdg-open: Tramelo aberto: $(tr '\0' ' ' < "/proc/$aberto/cmdline")"
  sleep 2
  cp /tmp/tela/Xvfb_screen0 /tmp/xdg-open.xwd
  fecha "$aberto"
else
  echo "xdg-open: o Tramelo não abriu"
fi
tramelo-calc "$HOME/água.trl" | grep -m1 'Diâmetro do orifício' | sed 's/^ */calc: /'
kill "$xvfb"
SESSAO
echo "== sessão do usuário engenheiro (Xvfb)"
no su engenheiro -s /bin/bash /tmp/sessao.sh > "$trabalho/sessao.log" 2>&1 || true
sed 's/^/   /' "$trabalho/sessao.log"

echo "== verificações"
confere "entrada do menu abre a janela" "grep -q '^menu: janela Tramelo' '$trabalho/sessao.log'"
confere "xdg-open reconhece .trl" "grep -q '^mime: application/x-tramelo' '$trabalho/sessao.log'"
confere "o .trl abre no Tramelo pelo xdg-open" "grep -q '^xdg-open: Tramelo aberto: [^ ]*Tramelo [^ ]*/água.trl' '$trabalho/sessao.log'"
confere "Sair encerra o programa" "[ \"\$(grep -c '^fim: Sair encerrou' '$trabalho/sessao.log')\" = 2 ]"
confere "tramelo-calc calcula o arquivo" "grep -q '^calc: Diâmetro do orifício' '$trabalho/sessao.log'"
confere "a dica do dia aparece na primeira partida" "grep -q '^menu: janela Dica do dia' '$trabalho/sessao.log'"
confere "configurações do usuário em ~/.config/Tramelo" "[ -f '$raiz/home/engenheiro/.config/Tramelo/registro-usuario.json' ]"
confere "dados do programa em ~/.local/share/Tramelo" "[ -f '$raiz/home/engenheiro/.local/share/Tramelo/registro-maquina.json' ]"
confere "nada gravado em /usr" "[ -z \"\$(find '$raiz/usr' -newer '$raiz/tmp/marca' -not -type d | grep -v '/__pycache__/' | head -1)\" ]"
confere "nenhuma entrada de menu a mais do usuário" "[ ! -e '$raiz/home/engenheiro/.local/share/applications/Tramelo.desktop' ]"
echo "   pastas do usuário:"
(cd "$raiz/home/engenheiro" && find .config/Tramelo .local/share/Tramelo 2>/dev/null | sed 's/^/     /')
for f in menu xdg-open; do
  [ -f "$raiz/tmp/$f.xwd" ] && convert "xwd:$raiz/tmp/$f.xwd" "$trabalho/$f.png" 2> /dev/null &&
    echo "   imagem: $trabalho/$f.png"
done
[ "$falhas" -eq 0 ] && echo "== instalação limpa: tudo certo" || { echo "== instalação limpa: $falhas falha(s)"; exit 1; }
