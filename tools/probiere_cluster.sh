#!/usr/bin/env bash
# Tries packaging/slurm: the shipped simulations with drawn values in four parts, joined, against one call. Where Slurm answers, through
# its queue; else the commands of the array run one by one. Says which.
#
#     tools/probiere_cluster.sh [varnok-batch]
set -euo pipefail

Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
VARNOK_BATCH=$(realpath "${1:-$Wurzel/build/release/src/batch/varnok-batch}")
export VARNOK_BATCH
Slurm=$Wurzel/packaging/slurm

Ordner=$(mktemp -d)
trap 'rm -rf "$Ordner"' EXIT
cp -r "$Wurzel/data" "$Ordner/projekt"
cat >"$Ordner/u.csv" <<'CSV'
name,distribution,a,b,c,correlated_with,rank_correlation
"Koc[,0]",lognormal,120,1.8,,,
CSV
Wunsch=(--all --sample "$Ordner/u.csv" --draws 25)

if sinfo --noheader >/dev/null 2>&1; then
    echo "through the queue of Slurm"
    mkdir "$Ordner/teile"
    letzte=$("$Slurm/starte.sh" 4 "$Ordner/projekt" "$Ordner/teile" "${Wunsch[@]}")
    for _ in $(seq 120); do
        [[ -n $(squeue --noheader --jobs "$letzte" 2>/dev/null) ]] || break
        sleep 1
    done
else
    echo "without Slurm: the commands of the array one by one"
    mkdir "$Ordner/teile"
    for i in 0 1 2 3; do
        SLURM_ARRAY_TASK_ID=$i SLURM_ARRAY_TASK_COUNT=4 SLURM_CPUS_PER_TASK=1 \
            bash "$Slurm/feld.sbatch" "$Ordner/projekt" "$Ordner/teile" "${Wunsch[@]}"
    done
    bash "$Slurm/verbinden.sbatch" "$Ordner/teile"
fi

"$VARNOK_BATCH" "${Wunsch[@]}" --json-lines "$Ordner/ganz.jsonl" --summary "$Ordner/ganz.csv" "$Ordner/projekt" 2>/dev/null
cmp "$Ordner/teile/results.jsonl" "$Ordner/ganz.jsonl"
cmp "$Ordner/teile/summary.csv" "$Ordner/ganz.csv"
echo "$(wc -l <"$Ordner/ganz.jsonl") lines in four parts: the same bytes as in one call"
