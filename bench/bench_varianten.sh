#!/usr/bin/env bash
# What variants cost: seconds of 10000 draws of DT50 and Koc over a simulation with a metabolite, with summary and database, and the memory
# of 2000 and of 20000 variants. Compares the bytes of one thread, two threads and four shards.
#
#     bench/bench_varianten.sh [varnok-batch]
set -euo pipefail

Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
Programm=${1:-$Wurzel/build/release/src/batch/varnok-batch}

Ordner=$(mktemp -d)
trap 'rm -rf "$Ordner"' EXIT
cp -r "$Wurzel/data" "$Ordner/projekt"
cat >"$Ordner/u.csv" <<'CSV'
name,distribution,a,b,c,correlated_with,rank_correlation
"DT50[,0]",lognormal,30,1.5,,,
"Koc[,0]",lognormal,100,2,,"DT50[,0]",0.3
CSV

# rufe ANZAHL OPTION...: the call with so many draws.
rufe() {
    "$Programm" --simulation "Potatoes, Compound C" --study 2 --sample "$Ordner/u.csv" --draws "$1" "${@:2}" "$Ordner/projekt"
}

echo "load of the machine: $(cut -d' ' -f1 /proc/loadavg) on $(nproc) cores"
for Arbeiter in 1 2; do
    TIMEFORMAT="10000 draws, summary and database, $Arbeiter threads: %R s, of the processor %U s"
    time rufe 10000 --jobs "$Arbeiter" --summary "$Ordner/$Arbeiter.csv" --sqlite "$Ordner/$Arbeiter.db"
done
for i in 0 1 2 3; do rufe 10000 --shard "$i/4" --sqlite "$Ordner/teil$i.db"; done
"$Programm" --merge "$Ordner"/teil*.db --sqlite "$Ordner/alle.db" --summary "$Ordner/alle.csv"
cmp "$Ordner/1.csv" "$Ordner/2.csv"
cmp "$Ordner/1.csv" "$Ordner/alle.csv"
for x in 1 2 alle; do sqlite3 "$Ordner/$x.db" .dump | sha256sum; done | sort -u | wc -l | grep -qx 1
echo "one thread, two threads, four shards joined: the same summary and the same dump"

for Ausgabe in csv json-lines sqlite summary; do
    for Anzahl in 2000 20000; do
        /usr/bin/time -f "$Anzahl variants, --$Ausgabe: %M KB" \
            "$Programm" --simulation "Potatoes, Compound C" --study 2 --sample "$Ordner/u.csv" --draws "$Anzahl" --jobs 2 \
            "--$Ausgabe" "$Ordner/gross$Anzahl.$Ausgabe" "$Ordner/projekt"
    done
done
