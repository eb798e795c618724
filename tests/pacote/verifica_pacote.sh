#!/usr/bin/env bash
# Builds the Debian package from a built tree and checks it as a user and as
# Debian would: its files and where they go, its control fields, lintian,
# the AppStream data and the desktop entry, the installed tool's help, and
# that `cmake --install` under another prefix gives the same layout.
#   verifica_pacote.sh BUILD_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
tmp=$(mktemp -d "${TMPDIR:-/tmp}/tramelo-pacote-XXXXXX")
trap 'rm -rf "$tmp"' EXIT
falhas=0
falha() { echo "FALHA: $*" >&2; falhas=$((falhas + 1)); }

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$tmp/saida" > "$tmp/cpack.log" 2>&1 ||
  { cat "$tmp/cpack.log" >&2; exit 1; }
deb=$(ls "$tmp"/saida/tramelo_*.deb)
echo "pacote: $(basename "$deb")"

# Every file and where it goes; the directories are implied.
dpkg-deb -c "$deb" | awk '$1 !~ /^d/ {print $6}' | sed 's|^\./||' | sort > "$tmp/arquivos"
sort > "$tmp/esperados" <<'LISTA'
usr/bin/Tramelo
usr/bin/tramelo-calc
usr/share/applications/br.com.quillon.Tramelo.desktop
usr/share/doc/tramelo/changelog.gz
usr/share/doc/tramelo/copyright
usr/share/icons/hicolor/128x128/apps/tramelo.png
usr/share/icons/hicolor/16x16/apps/tramelo.png
usr/share/icons/hicolor/22x22/apps/tramelo.png
usr/share/icons/hicolor/24x24/apps/tramelo.png
usr/share/icons/hicolor/256x256/apps/tramelo.png
usr/share/icons/hicolor/32x32/apps/tramelo.png
usr/share/icons/hicolor/48x48/apps/tramelo.png
usr/share/icons/hicolor/64x64/apps/tramelo.png
usr/share/icons/hicolor/scalable/apps/tramelo.svg
usr/share/man/man1/Tramelo.1.gz
usr/share/man/man1/tramelo-calc.1.gz
usr/share/metainfo/br.com.quillon.Tramelo.metainfo.xml
usr/share/mime/packages/tramelo.xml
usr/share/tramelo/DicaDoDia.txt
usr/share/tramelo/manual/arquivo.html
usr/share/tramelo/manual/atalhos.html
usr/share/tramelo/manual/campos.html
usr/share/tramelo/manual/estilo.css
usr/share/tramelo/manual/ferramentas.html
usr/share/tramelo/manual/index.html
usr/share/tramelo/manual/iso5167.html
usr/share/tramelo/manual/linha-de-comando.html
usr/share/tramelo/manual/metodo.html
usr/share/tramelo/manual/primeiros-passos.html
usr/share/tramelo/manual/propriedades.html
usr/share/tramelo/manual/relatorio.html
usr/share/tramelo/manual/verificacao.html
LISTA
diff -u "$tmp/esperados" "$tmp/arquivos" || falha "arquivos do pacote"
dpkg-deb -c "$deb" | awk '{print $2}' | grep -qv '^root/root$' && falha "arquivo que não é de root"

# Control fields: name, version of the project, and the libraries found by
# dpkg-shlibdeps next to the Qt platform plugins and Qt's own translations.
campo() { dpkg-deb -f "$deb" "$1"; }
[ "$(campo Package)" = tramelo ] || falha "Package: $(campo Package)"
[ "$(campo Version)" = "$(sed -n 's/^CPACK_PACKAGE_VERSION:STRING=//p;s/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt" | head -1)" ] ||
  falha "Version: $(campo Version)"
[ "$(campo Architecture)" = "$(dpkg --print-architecture)" ] || falha "Architecture: $(campo Architecture)"
[ "$(campo Section)" = science ] || falha "Section: $(campo Section)"
for dep in libc6 libstdc++6 libqt6core6 libqt6widgets6 libqt6printsupport6 libqt6network6 qt6-qpa-plugins qt6-translations-l10n; do
  campo Depends | tr ',' '\n' | grep -q "^ *$dep\b" || falha "Depends sem $dep: $(campo Depends)"
done
campo Description | sed -n 2p | grep -q 'placa de orifício' || falha "descrição longa"

# Lintian: no error (warnings are reported, not failed).
if command -v lintian > /dev/null; then
  lintian --no-tag-display-limit "$deb" > "$tmp/lintian" 2>&1 || true
  grep '^[EW]:' "$tmp/lintian" || true
  grep -q '^E:' "$tmp/lintian" && falha "lintian com erros"
fi

# The installed files as the desktop and AppStream read them.
dpkg-deb -x "$deb" "$tmp/raiz"
appstreamcli validate --no-net "$tmp/raiz/usr/share/metainfo/br.com.quillon.Tramelo.metainfo.xml" > "$tmp/as" 2>&1 ||
  { cat "$tmp/as" >&2; falha "appstreamcli validate"; }
desktop-file-validate "$tmp/raiz/usr/share/applications/br.com.quillon.Tramelo.desktop" || falha "entrada de menu"
grep -q '^MimeType=application/x-tramelo;$' "$tmp/raiz/usr/share/applications/br.com.quillon.Tramelo.desktop" ||
  falha "MimeType da entrada"
grep -q 'glob pattern="\*.trl"' "$tmp/raiz/usr/share/mime/packages/tramelo.xml" || falha "tipo .trl"
# "Como utilizar a ajuda..." opens the manual's first page at this section.
grep -q 'id="como-usar"' "$tmp/raiz/usr/share/tramelo/manual/index.html" || falha "manual sem a seção como-usar"
for lado in 16 22 24 32 48 64 128 256; do
  file "$tmp/raiz/usr/share/icons/hicolor/${lado}x$lado/apps/tramelo.png" | grep -q "PNG image data, $lado x $lado" ||
    falha "ícone de $lado"
done
zcat "$tmp/raiz/usr/share/man/man1/tramelo-calc.1.gz" | LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l - 2> "$tmp/man" > /dev/null
[ -s "$tmp/man" ] && { cat "$tmp/man" >&2; falha "página de manual"; }

# The installed tool: Portuguese help, and a calculation whose data folder
# is the user's, not the package's.
ajuda=$("$tmp/raiz/usr/bin/tramelo-calc" --help)
echo "$ajuda" | grep -q '^Uso: tramelo-calc \[OPÇÕES\] \[ARQUIVO' || falha "ajuda: $ajuda"
echo "$ajuda" | grep -Eq 'Usage|Positionals|Options|Print this|REQUIRED' && falha "ajuda em inglês: $ajuda"
erro=$("$tmp/raiz/usr/bin/tramelo-calc" --nada x.trl 2>&1 > /dev/null) && falha "opção desconhecida aceita"
[ "$erro" = "tramelo-calc: argumento não esperado: --nada
uso: tramelo-calc [--json] [--sim] [--iso] [--verifica D_MM [--faixa P1,P2,...]] ARQUIVO.trl...
     tramelo-calc --propriedades P T [--json]
Use --help para mais informações." ] || falha "erro de opção: $erro"

# `cmake --install` under a user prefix: the same files in the same places.
cmake --install "$build" --prefix "$tmp/prefixo" > /dev/null
(cd "$tmp/prefixo" && find . -type f -printf 'usr/%P\n' | sort) > "$tmp/prefixo.lista"
diff -u "$tmp/esperados" "$tmp/prefixo.lista" || falha "cmake --install com outro prefixo"

[ "$falhas" -eq 0 ] || exit 1
echo "pacote verificado"
