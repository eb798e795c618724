#!/usr/bin/env bash
# Every include of src/ points down: a file includes files of its own folder
# or of a lower floor. The floors are the README's table, read here, so they
# are written down once.
set -euo pipefail
raiz=${1:-$(dirname "$0")/../..}
declare -A andar
while read -r n pastas; do
  for p in $pastas; do andar[$p]=$n; done
done < <(sed -n '/<!-- andares/,/<!-- \/andares/p' "$raiz/README.md" | grep -E '^ +[0-9]+ ')
[ ${#andar[@]} -gt 0 ] || { echo "README.md: no floor table"; exit 2; }

erros=0
while IFS= read -r arquivo; do
  pasta=${arquivo#"$raiz"/src/}; pasta=${pasta%%/*}
  if [ -z "${andar[$pasta]:-}" ]; then
    echo "src/$pasta/: a folder on no floor"; erros=$((erros + 1)); continue
  fi
  while IFS=: read -r linha inc; do
    alvo=${inc%%/*}
    [ "$alvo" = "$pasta" ] && continue
    if [ -z "${andar[$alvo]:-}" ]; then
      echo "${arquivo#"$raiz"/}:$linha: includes $inc, of a folder on no floor"
      erros=$((erros + 1))
    elif [ "${andar[$alvo]}" -ge "${andar[$pasta]}" ]; then
      echo "${arquivo#"$raiz"/}:$linha: $pasta (floor ${andar[$pasta]}) includes $inc (floor ${andar[$alvo]})"
      erros=$((erros + 1))
    fi
  done < <(grep -noP '^\s*#\s*include\s*"\K[^"]+/[^"]+' "$arquivo" || true)
  # Qt stays on the desktop's floors.
  if [ "${andar[$pasta]}" -lt "${andar[desktop]}" ] && grep -qE '^\s*#\s*include\s*<Q' "$arquivo"; then
    echo "${arquivo#"$raiz"/}: Qt below the desktop"; erros=$((erros + 1))
  fi
done < <(find "$raiz/src" -name '*.h' -o -name '*.cpp' | sort)
echo "andares: $erros include(s) out of place"
[ "$erros" -eq 0 ]
