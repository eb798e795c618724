#!/usr/bin/env bash
# The clean-install check takes its Debian mirror from the machine's apt
# sources: the first source of bookworm in apt's order, from one-line and
# deb822 files alike. Mirrors here are documentation addresses.
#   espelho_apt.sh SOURCE_DIR
set -euo pipefail
script=$1/scripts/instalacao-limpa.sh
tmp=$(mktemp -d "${TMPDIR:-/tmp}/tramelo-espelho-XXXXXX")
trap 'rm -rf "$tmp"' EXIT
falhas=0
# case NAME EXPECTED: the mirror found in $tmp/NAME, or "" for none.
caso() {
  local obtido
  obtido=$(env -u TRAMELO_ESPELHO TRAMELO_APT_ETC="$tmp/$1" bash "$script" --espelho 2> /dev/null) || obtido=
  if [ "$obtido" = "$2" ]; then echo "ok: $1"; else echo "FALHA: $1: '$obtido', esperado '$2'" >&2; falhas=$((falhas + 1)); fi
}

# One line a source: comments, deb-src, options, the security archive and
# another suite come before the one.
mkdir -p "$tmp/linhas/sources.list.d"
cat > "$tmp/linhas/sources.list" <<'FIM'
# deb http://192.0.2.9/debian bookworm main
deb-src http://192.0.2.8/debian bookworm main
deb http://192.0.2.7/debian-security bookworm-security main
deb [arch=amd64 signed-by=/usr/share/keyrings/x.gpg] http://192.0.2.6/debian bookworm-updates main
deb [ arch=amd64 ] http://192.0.2.1/debian bookworm main contrib   # the archive
FIM
caso linhas http://192.0.2.1/debian

# deb822 stanzas: a disabled one, sources only, another vendor, then the one,
# with its fields in any case and a comment among them.
mkdir -p "$tmp/deb822/sources.list.d"
cat > "$tmp/deb822/sources.list.d/debian.sources" <<'FIM'
Types: deb
URIs: http://192.0.2.9/debian
Suites: bookworm
Enabled: no

Types: deb-src
URIs: http://192.0.2.8/debian
Suites: bookworm

Types: deb
URIs: https://192.0.2.7/apt
Suites: nodistro

types: deb deb-src
# a snapshot was here
uris: http://192.0.2.2/debian
  http://192.0.2.3/debian
suites: bookworm bookworm-updates
components: main
FIM
caso deb822 http://192.0.2.2/debian

# apt's order: sources.list first, then sources.list.d by name; a file apt
# doesn't read (".disabled") doesn't count.
mkdir -p "$tmp/ordem/sources.list.d"
echo "deb http://192.0.2.7/debian-security bookworm-security main" > "$tmp/ordem/sources.list"
echo "deb http://192.0.2.9/debian bookworm main" > "$tmp/ordem/sources.list.d/a.list.disabled"
printf 'Types: deb\nURIs: http://192.0.2.4/debian\nSuites: bookworm\n' > "$tmp/ordem/sources.list.d/b.sources"
echo "deb http://192.0.2.5/debian bookworm main" > "$tmp/ordem/sources.list.d/c.list"
caso ordem http://192.0.2.4/debian

# No source of bookworm: no mirror, and the script says so.
mkdir -p "$tmp/nenhuma/sources.list.d"
echo "deb http://192.0.2.7/debian trixie main" > "$tmp/nenhuma/sources.list"
caso nenhuma ""

# TRAMELO_ESPELHO still chooses.
obtido=$(TRAMELO_ESPELHO=file:/srv/debian TRAMELO_APT_ETC="$tmp/linhas" bash "$script" --espelho)
[ "$obtido" = file:/srv/debian ] && echo "ok: TRAMELO_ESPELHO" ||
  { echo "FALHA: TRAMELO_ESPELHO: '$obtido'" >&2; falhas=$((falhas + 1)); }

[ "$falhas" -eq 0 ]
