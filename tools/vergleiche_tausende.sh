#!/bin/sh
# Compares the run with the plain calculation of the tests, bit for bit, over thousands of random inputs.
# Usage: tools/vergleiche_tausende.sh BUILD-FOLDER [NUMBER] [FIRST-SEED]
set -eu
Bau=$1
Anzahl=${2:-2000}
Saat=${3:-100000}
Beginn=$(date +%s)
VARNOK_ZUFALLSLAEUFE=$Anzahl VARNOK_ERSTE_SAAT=$Saat "$Bau/tests/test_exposure" \
    --gtest_also_run_disabled_tests --gtest_filter='Zufallslauf.DISABLED_thousands*'
echo "$Anzahl random inputs in $(($(date +%s) - Beginn)) s"
