#!/usr/bin/env bash
# Builds the programs and starts the window on the project folder build/projekt, a copy of the shipped
# data that may be changed at will. Without a display, or with arguments, varnok-batch runs on it:
#
#     ./run.sh                    the window, or the start simulation as a table
#     ./run.sh --all --csv -      every shipped simulation as CSV
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/tools/umgebung.sh"

installiere_fehlende
baue varnok-batch varnok

# Records that were changed in the copy are newer than the shipped ones and stay. The time stamps come
# along, so that no example becomes the newest simulation, which is the one that starts by default; of a
# fresh copy that is Programcheck.
Projekt=$Wurzel/build/projekt
neu=true
[[ ! -d $Projekt/input ]] || neu=false
mkdir -p "$Projekt/input" "$Projekt/output"
cp -Ru --preserve=timestamps "$Wurzel/data/input/." "$Projekt/input"
if $neu; then
    touch "$Projekt/input/Programcheck.vnk"
fi

if (($# == 0)) && [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    cd "$Projekt"
    exec "$Bauordner/src/window/varnok"
fi
exec "$Bauordner/src/batch/varnok-batch" "$@" "$Projekt"
