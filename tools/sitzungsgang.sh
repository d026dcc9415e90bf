#!/usr/bin/env bash
# A random walk over the session, longer than that of the tests; needs a configured build folder.
#
#     tools/sitzungsgang.sh [STEPS [SEED [BUILD FOLDER]]]
#
# Without arguments 20000 steps under the address and undefined behaviour sanitizers (preset `sanitize`). A violation prints its
# seed and the shortest list of actions that shows it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export VARNOK_GANG_SCHRITTE=${1:-20000}
export VARNOK_GANG_SAAT=${2:-$(date +%s)}
Ordner=${3:-build/sanitize}

[[ -f $Ordner/build.ninja ]] || cmake -S . --preset "$(basename "$Ordner")" >&2
cmake --build "$Ordner" --target test_session -j "$(nproc)" >&2

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tools/lecks_anderer.txt:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
printf '%s steps, seed %s\n' "$VARNOK_GANG_SCHRITTE" "$VARNOK_GANG_SAAT"
time "$Ordner/tests/test_session" '--gtest_filter=Sitzungsgang*'
