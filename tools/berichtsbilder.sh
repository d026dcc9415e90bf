#!/usr/bin/env bash
# Takes the pictures of the reports in docs/bilder anew: of every kind the pages that a text processor makes of the rich text,
# and those that the program prints. Needs no display.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/umgebung.sh"

Pakete+=("${Testpakete[@]}")
installiere_fehlende
baue berichtsseiten

Programm=$(find "$Bauordner" -type f -name berichtsseiten -perm -u+x -print -quit)
Ordner=$(mktemp -d)
trap 'rm -rf "$Ordner"' EXIT
export QT_QPA_PLATFORM=offscreen
"$Programm" "$Ordner"
leise rtf soffice --headless "-env:UserInstallation=file://$Ordner/profile" --convert-to pdf --outdir "$Ordner" "$Ordner"/*.rtf

# Not more dots than it takes to read a page.
for Datei in "$Ordner"/*.pdf; do
    pdftoppm -r 60 "$Datei" "${Datei%.pdf}"
done
python3 "$Wurzel/tools/berichtsbilder.py" "$Ordner" "$Wurzel/docs/bilder"
