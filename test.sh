#!/usr/bin/env bash
# Builds everything and runs all tests; arguments are passed on to ctest, e.g. ./test.sh -R zahlen
#
#     ./test.sh --deep     also: every header alone, clang-tidy, the tests under the sanitizers and without Qt, and a long
#                          random walk over the session. Takes an hour or two.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/tools/umgebung.sh"

gruendlich=false
if [[ ${1:-} == --deep ]]; then
    gruendlich=true
    shift
    Testpakete+=("${Pruefpakete[@]}")
fi

Pakete+=("${Testpakete[@]}")
installiere_fehlende
baue

# Qt without a display, and with a runtime folder as private as it wants one.
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=$Wurzel/build/laufzeit
mkdir -p "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"

pruefe() { ctest --test-dir "$1" --output-on-failure -j "$(nproc)" "${@:2}"; }

# The presets that find what an ordinary run does not show: memory, undefined behaviour, threads, a hidden need for Qt.
pruefe_Preset() {
    sage "Preset $1 ..."
    leise "konfiguration-$1" cmake -S "$Wurzel" --preset "$1"
    leise "bau-$1" cmake --build "$Wurzel/build/$1" -j "$(nproc)"
    (cd "$Wurzel" && ctest --preset "$1")
}

if $gruendlich; then
    baue all_verify_interface_header_sets
    "$Wurzel/tools/pruefe_stil.sh" "$Bauordner"
    for Preset in engine sanitize thread; do pruefe_Preset "$Preset"; done
    "$Wurzel/tools/sitzungsgang.sh" 100000 13 "$Bauordner"
fi
pruefe "$Bauordner" "$@"
