#!/usr/bin/env bash
# Takes the pictures of docs/bilder/sizes anew: the smallest window in letters of 9, 11, 14 and 16 pt at 100 and 200 %, on a light
# and a dark desktop, and every kind of control with the keyboard focus. Needs no display.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/umgebung.sh"

installiere_fehlende
baue groessenbilder

Programm=$(find "$Bauordner" -type f -name groessenbilder -perm -u+x -print -quit)
Ziel=$Wurzel/docs/bilder/sizes
source "$Wurzel/tools/bildschirm.sh"

for Farbe in light dark; do
    for Prozent in 100 200; do
        export QT_SCALE_FACTOR=$((Prozent / 100))
        for Punkt in 9 11 14 16; do
            "$Programm" "$Ziel" "$Punkt" "$Farbe" "$Prozent"
        done
    done
    QT_SCALE_FACTOR=1 "$Programm" "$Ziel" 9 "$Farbe" 100 focus
done
