#!/usr/bin/env bash
# Takes the pictures of the window in docs/bilder anew. Needs no display. Arguments are passed on:
#
#     tools/bildschirmfotos.sh          for the documentation
#     tools/bildschirmfotos.sh dark     on a dark desktop, into build/bilder-dark
#     tools/bildschirmfotos.sh large    with large letters, into build/bilder-large
#     tools/bildschirmfotos.sh diagrams    the diagrams alone, at four sizes and four scales, into docs/bilder/diagrams
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/umgebung.sh"

installiere_fehlende
baue bildschirmfotos

Programm=$(find "$Bauordner" -type f -name bildschirmfotos -perm -u+x -print -quit)
Ziel=$Wurzel/docs/bilder
[[ $# -eq 0 ]] || Ziel=$Wurzel/build/bilder-$1
[[ "${1:-}" != diagrams ]] || Ziel=$Wurzel/docs/bilder/diagrams

source "$Wurzel/tools/bildschirm.sh"

"$Programm" "$Ziel" "$@"
if [[ "${1:-}" == diagrams ]]; then
    for Massstab in 1 1.25 1.5 2; do
        QT_SCALE_FACTOR=$Massstab "$Programm" "$Ziel" scale "$Massstab"
    done
fi
