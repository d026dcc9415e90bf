#!/usr/bin/env bash
# rauchtest.sh <varnok> <data folder>: one short session as the user has it, on a display of its own with a window manager.
# Returns 77 where one of the tools is missing.
set -euo pipefail

name=rauchtest
werkzeuge=(xwd python3)
geduld=15
source "$(dirname "${BASH_SOURCE[0]}")/buehne.sh"

# The newest simulation is the one that the program opens.
touch -d '2 hours ago' "$projekt"/input/*.vnk
touch -d '1 hour ago' "$projekt/input/Programcheck.vnk"

bild() { xwd -root -silent >"$ordner/$1.xwd"; }

# Pixels of the colour that only a field in work has.
gelbe_punkte() {
    bild suche
    python3 - "$ordner/suche.xwd" <<'PYTHON'
import struct, sys
daten = open(sys.argv[1], "rb").read()
kopf = struct.unpack(">25I", daten[:100])
laenge, breite, hoehe, reihenfolge, bits, zeile, farben = (kopf[i] for i in (0, 4, 5, 7, 11, 12, 19))
if bits not in (24, 32):
    sys.exit("a picture of %d bits" % bits)
bild = daten[laenge + 12 * farben:]
schritt = bits // 8
gelb = b"\x00\xff\xff" if reihenfolge == 0 else b"\xff\xff\x00"
von = 0 if reihenfolge == 0 else schritt - 3
print(sum(bild[i * zeile + j + von:i * zeile + j + von + 3] == gelb
          for i in range(hoehe) for j in range(0, breite * schritt, schritt)))
PYTHON
}

finde_fenster() {
    fenster=$(timeout 5 xdotool search --onlyvisible --name '^VARNOK - Soil residue forecast tool$' 2>/dev/null | head -n 1) && [[ -n $fenster ]]
}
ist_aktiv() { [[ $(timeout 5 xdotool getactivewindow 2>/dev/null) == "$fenster" ]]; }

"$programm" >"$ordner/ausgabe.txt" 2>&1 &
pid_programm=$!
warte_auf 'the window' finde_fenster
warte_auf 'the window in front' ist_aktiv

# The button OK of the start page has the focus.
bild start
taste space
hat_sich_geaendert() { bild jetzt && ! cmp -s "$ordner/$1.xwd" "$ordner/jetzt.xwd"; }
warte_auf 'the working screen' hat_sich_geaendert start
sleep 0.5

# Tab walks to the first numeric field: the DT50 of the start simulation, which is of first order.
for ((i = 0; i < 40; ++i)); do
    taste Tab
    punkte=$(gelbe_punkte)
    ((punkte > 200)) && break
done
((i < 40)) || fehler 'Tab comes to no field'

bild vorher
taste ctrl+a
timeout 10 xdotool type --clearmodifiers 17
sleep 0.2
bild getippt
cmp -s "$ordner/vorher.xwd" "$ordner/getippt.xwd" && fehler 'typing shows nothing'
taste Tab
warte_auf 'the results of the new value' hat_sich_geaendert getippt

# Nothing is saved before it is asked for.
cmp -s "$daten/input/Programcheck.che" input/Programcheck.che || fehler 'the record was written before the save'
touch "$ordner/marke"
sleep 0.05
taste ctrl+s
# ln(2)/17 per day.
hat_neuen_wert() { grep -qa $'^SFO k (1/d):\t0.0407733635623497\t' input/Programcheck.che; }
warte_auf 'the saved record' hat_neuen_wert

touch "$ordner/marke"
sleep 0.05
taste alt+f
taste e
erwarte_Ende

[[ VARNOK.ini -nt $ordner/marke ]] || fehler 'VARNOK.ini was not written on exit'
[[ input/Programcheck.vnk -nt $ordner/marke ]] || fehler 'the summary file was not written on exit'
(($(wc -l <VARNOK.ini) >= 26)) || fehler 'VARNOK.ini is short'
echo 'rauchtest: passed'
