#!/usr/bin/env bash
# Simulations a second of a whole call of varnok-batch, records to CSV, with one thread and with two.
#
#     bench/bench_batch.sh [varnok-batch [number of simulations]]
#
# The records lie in the page cache; the best of five calls counts. Takes a quiet machine.
set -euo pipefail

Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
Programm=${1:-$Wurzel/build/release/src/batch/varnok-batch}
Anzahl=${2:-10000}

Ordner=$(mktemp -d)
trap 'rm -rf "$Ordner"' EXIT
python3 -B "$Wurzel/tools/erzeuge_viele.py" "$Ordner/projekt" --anzahl "$Anzahl"

# Milliseconds of the best call with that many threads.
beste_Zeit() {
    local beste=0 Anfang Zeit
    for _ in 1 2 3 4 5; do
        Anfang=$(date +%s%N)
        "$Programm" --all --jobs "$1" --csv "$Ordner/$1.csv" "$Ordner/projekt"
        Zeit=$((($(date +%s%N) - Anfang) / 1000000))
        if ((beste == 0 || Zeit < beste)); then beste=$Zeit; fi
    done
    echo "$beste"
}

eins=$(beste_Zeit 1)
zwei=$(beste_Zeit 2)
cmp "$Ordner/1.csv" "$Ordner/2.csv"
awk -v n="$Anzahl" -v a="$eins" -v b="$zwei" 'BEGIN {
    printf "%d simulations: 1 thread %d ms, %.0f a second; 2 threads %d ms, %.0f a second; ratio %.2f\n",
        n, a, 1000 * n / a, b, 1000 * n / b, a / b }'
