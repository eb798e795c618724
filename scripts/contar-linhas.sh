#!/usr/bin/env bash
# Counts the lines of C++ (*.cpp, *.h) that are neither blank nor comment
# (a line holding only a // comment, or only lines of a /* */ block), for the
# code and for the tests, and the ratio of the two.
#   code:  src/ and tools/ (tramelo-calc ships; the screenshot and timing tools
#          are programs of the project)
#   tests: tests/, bench/ and fuzz/ (they exist only to exercise the code)
# Golden reports and other data files aren't counted.
set -euo pipefail
cd "$(dirname "$0")/.."

conta() {
    local pastas=()
    for p in "$@"; do [ -d "$p" ] && pastas+=("$p"); done
    [ ${#pastas[@]} -eq 0 ] && { echo 0; return; }
    find "${pastas[@]}" -type f \( -name '*.cpp' -o -name '*.h' \) -print0 |
        xargs -0 -r awk '
            FNR == 1 { bloco = 0 }
            {
                l = $0
                sub(/^[ \t]+/, "", l)
                if (bloco) {
                    if (index(l, "*/")) { bloco = 0; l = substr(l, index(l, "*/") + 2); sub(/^[ \t]+/, "", l) }
                    else next
                }
                if (l == "" || substr(l, 1, 2) == "//") next
                if (substr(l, 1, 2) == "/*") {
                    if (!index(substr(l, 3), "*/")) { bloco = 1; next }
                    rest = substr(l, index(substr(l, 3), "*/") + 4); sub(/^[ \t]+/, "", rest)
                    if (rest == "") next
                }
                n++
            }
            END { print n + 0 }'
}

for p in src tools tests bench fuzz; do
    printf '%-6s %6s\n' "$p/" "$(conta "$p")"
done
codigo=$(conta src tools)
testes=$(conta tests bench fuzz)
printf 'code (src/ tools/):          %6d\n' "$codigo"
printf 'tests (tests/ bench/ fuzz/): %6d\n' "$testes"
awk -v t="$testes" -v c="$codigo" 'BEGIN { printf "tests / code: %.1f%%\n", 100 * t / c }'
