#!/usr/bin/env bash
# Builds everything and runs all tests; arguments are passed on to ctest, e.g. ./test.sh -R zahlen
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/tools/umgebung.sh"

Pakete+=("${Testpakete[@]}")
installiere_fehlende
baue
# Compiles every header alone, which no test program does.
if kennt_Ziel all_verify_interface_header_sets; then
    baue all_verify_interface_header_sets
fi

# Qt without a display, and with a runtime folder as private as it wants one.
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=$Wurzel/build/laufzeit
mkdir -p "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"

exec ctest --test-dir "$Bauordner" --output-on-failure -j "$(nproc)" "$@"
