#!/usr/bin/env bash
# netzstille.sh <varnok> <data folder>: traces the system calls of a program without an update server through start, menu
# entry and exit. It may open no socket but those to the display and to the desktop of its own machine.
# Returns 77 where one of the tools is missing or may not trace.
set -euo pipefail

name=netzstille
werkzeuge=(strace)
geduld=30  # a traced program is slow
if command -v strace >/dev/null && ! strace -o /dev/null true 2>/dev/null; then
    echo 'netzstille: strace may not trace' >&2
    exit 77
fi
# The search for leaks at the end is a tracer itself, and a program has one tracer.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
source "$(dirname "${BASH_SOURCE[0]}")/buehne.sh"

ist_vorne() { [[ $(timeout 5 xdotool getactivewindow getwindowname 2>/dev/null) == "$1" ]]; }
hauptfenster='VARNOK - Soil residue forecast tool'

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
erwarte_Ende

# Sockets are of the machine's own kind, and what they reach is the display, the desktop's bus or the name service.
oertlich='socket\(AF_UNIX,'
ziele='[^"]*/\.X11-unix/X[0-9]+|[^"]*(dbus|bus|at-spi)[^"]*|/(var/)?run/nscd/socket'
erlaubt='connect\([0-9]+, \{sa_family=AF_UNIX, sun_path=@?"('"$ziele"')"'
grep -qE 'connect\(.*\.X11-unix' "$ordner/spur.txt" || fehler 'the trace misses even the display'
fremd=$(grep -E ' (socket|connect)\(' "$ordner/spur.txt" | grep -vE "$oertlich|$erlaubt" || true)
[[ -z $fremd ]] || fehler "sockets to the outside:"$'\n'"$fremd"
grep -E '(socket|connect)\(' "$ordner/spur.txt"
echo 'netzstille: passed'
