#!/usr/bin/env bash
# rauchtest.sh <varnok> <data folder>: one short session as the user has it, on a display of its own with a window manager.
# Returns 77 where one of the tools is missing.
set -euo pipefail

programm=$(realpath "$1")
daten=$(realpath "$2")

fehler() {
    echo "rauchtest: $*" >&2
    exit 1
}

if [[ ${3:-} != innen ]]; then
    for werkzeug in xvfb-run xauth openbox xdotool xwd python3; do
        command -v "$werkzeug" >/dev/null || { echo "rauchtest: no $werkzeug" >&2; exit 77; }
    done
    [[ -x $programm ]] || fehler "no program $programm"
    ordner=$(mktemp -d)
    trap 'rm -rf "$ordner"' EXIT
    xvfb-run -a -s '-screen 0 1400x1000x24 -nolisten tcp' "$BASH" "$0" "$programm" "$daten" innen "$ordner"
    exit
fi

ordner=$4
projekt=$ordner/projekt
mkdir -p "$projekt" "$ordner/heim" "$ordner/lauf"
chmod 700 "$ordner/lauf"
cp -r "$daten/input" "$projekt/input"
chmod -R u+w "$projekt"
# The newest simulation is the one that the program opens.
touch -d '2 hours ago' "$projekt"/input/*.vnk
touch -d '1 hour ago' "$projekt/input/Programcheck.vnk"

export HOME=$ordner/heim XDG_CONFIG_HOME=$ordner/heim XDG_DATA_HOME=$ordner/heim XDG_CACHE_HOME=$ordner/heim
export XDG_RUNTIME_DIR=$ordner/lauf QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE

pid_verwalter= pid_programm=
raeume_auf() {
    for pid in $pid_programm $pid_verwalter; do
        kill "$pid" 2>/dev/null || continue
        wait "$pid" 2>/dev/null || true
    done
    return 0
}
trap raeume_auf EXIT

openbox --sm-disable >/dev/null 2>&1 &
pid_verwalter=$!

# warte_auf <what> <command...>: until the command succeeds, 15 s at most.
warte_auf() {
    local was=$1 i
    shift
    for ((i = 0; i < 150; ++i)); do
        "$@" && return
        [[ -z $pid_programm ]] || kill -0 "$pid_programm" 2>/dev/null || fehler "the program has ended while waiting for $was: $(cat "$ordner/ausgabe.txt")"
        sleep 0.1
    done
    fehler "waited in vain for $was"
}

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

taste() {
    timeout 10 xdotool key --clearmodifiers "$@"
    sleep 0.15
}

hat_verwalter() { timeout 5 xdotool getwindowfocus >/dev/null 2>&1; }
finde_fenster() {
    fenster=$(timeout 5 xdotool search --onlyvisible --name '^VARNOK - Soil residue forecast tool$' 2>/dev/null | head -n 1) && [[ -n $fenster ]]
}
ist_aktiv() { [[ $(timeout 5 xdotool getactivewindow 2>/dev/null) == "$fenster" ]]; }

warte_auf 'the window manager' hat_verwalter
cd "$projekt"
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
ist_beendet() { ! kill -0 "$pid_programm" 2>/dev/null; }
for ((i = 0; i < 100; ++i)); do
    ist_beendet && break
    sleep 0.1
done
ist_beendet || fehler 'the program does not end by File, Exit'
rc=0
wait "$pid_programm" || rc=$?
pid_programm=
((rc == 0)) || fehler "the program ended with $rc: $(cat "$ordner/ausgabe.txt")"

[[ VARNOK.ini -nt $ordner/marke ]] || fehler 'VARNOK.ini was not written on exit'
[[ input/Programcheck.vnk -nt $ordner/marke ]] || fehler 'the summary file was not written on exit'
(($(wc -l <VARNOK.ini) >= 26)) || fehler 'VARNOK.ini is short'
echo 'rauchtest: passed'
