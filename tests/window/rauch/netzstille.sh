#!/usr/bin/env bash
# netzstille.sh <varnok> <data folder>: traces the system calls of a program without an update server through start, menu
# entry and exit. It may open no socket but those to the display and to the desktop of its own machine.
# Returns 77 where one of the tools is missing or may not trace.
set -euo pipefail

programm=$(realpath "$1")
daten=$(realpath "$2")

fehler() {
    echo "netzstille: $*" >&2
    exit 1
}

if [[ ${3:-} != innen ]]; then
    for werkzeug in strace xvfb-run xauth openbox xdotool; do
        command -v "$werkzeug" >/dev/null || { echo "netzstille: no $werkzeug" >&2; exit 77; }
    done
    strace -o /dev/null true 2>/dev/null || { echo "netzstille: strace may not trace" >&2; exit 77; }
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

export HOME=$ordner/heim XDG_CONFIG_HOME=$ordner/heim XDG_DATA_HOME=$ordner/heim XDG_CACHE_HOME=$ordner/heim
export XDG_RUNTIME_DIR=$ordner/lauf QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE
# The search for leaks at the end is a tracer itself, and a program has one tracer.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0

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

# warte_auf <what> <command...>: until the command succeeds, 30 s at most: a traced program is slow.
warte_auf() {
    local was=$1 i
    shift
    for ((i = 0; i < 300; ++i)); do
        "$@" && return
        sleep 0.1
    done
    fehler "waited in vain for $was"
}

taste() {
    timeout 10 xdotool key --clearmodifiers "$@"
    sleep 0.3
}

hat_verwalter() { timeout 5 xdotool getwindowfocus >/dev/null 2>&1; }
ist_vorne() { [[ $(timeout 5 xdotool getactivewindow getwindowname 2>/dev/null) == "$1" ]]; }
ist_beendet() { ! kill -0 "$pid_programm" 2>/dev/null; }
hauptfenster='VARNOK - Soil residue forecast tool'

warte_auf 'the window manager' hat_verwalter
cd "$projekt"
strace -f -e trace=network -o "$ordner/spur.txt" "$programm" >"$ordner/ausgabe.txt" 2>&1 &
pid_programm=$!
warte_auf 'the window' ist_vorne "$hauptfenster"
# A check at the start would have asked by now.
sleep 1

taste alt+h
taste o
warte_auf 'the answer of the menu entry' ist_vorne 'Connection error'
taste Return
warte_auf 'the window' ist_vorne "$hauptfenster"
taste space
taste alt+f
taste e
warte_auf 'the end of the program' ist_beendet
rc=0
wait "$pid_programm" || rc=$?
pid_programm=
((rc == 0)) || fehler "the program ended with $rc: $(cat "$ordner/ausgabe.txt")"

# Sockets are of the machine's own kind, and what they reach is the display, the desktop's bus or the name service.
oertlich='socket\(AF_UNIX,'
ziele='[^"]*/\.X11-unix/X[0-9]+|[^"]*(dbus|bus|at-spi)[^"]*|/(var/)?run/nscd/socket'
erlaubt='connect\([0-9]+, \{sa_family=AF_UNIX, sun_path=@?"('"$ziele"')"'
grep -qE 'connect\(.*\.X11-unix' "$ordner/spur.txt" || fehler 'the trace misses even the display'
fremd=$(grep -E ' (socket|connect)\(' "$ordner/spur.txt" | grep -vE "$oertlich|$erlaubt" || true)
[[ -z $fremd ]] || fehler "sockets to the outside:"$'\n'"$fremd"
grep -E '(socket|connect)\(' "$ordner/spur.txt"
echo 'netzstille: passed'
