#!/usr/bin/env bash
# Tries packaging/slurm: the shipped simulations with drawn values in four parts, joined, against one call. Where Slurm answers, through
# its queue; else the commands of the array run one by one. Says which. With --slurm a Slurm of one node is started for it, from the
# Debian packages slurmctld, slurmd and slurm-client, and ended again; that takes root.
#
#     tools/probiere_cluster.sh [--slurm] [varnok-batch]
set -euo pipefail

Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
eigenes=0
if [[ ${1:-} == --slurm ]]; then
    eigenes=1
    shift
fi
VARNOK_BATCH=$(realpath "${1:-$Wurzel/build/release/src/batch/varnok-batch}")
export VARNOK_BATCH
Slurm=$Wurzel/packaging/slurm

Ordner=$(mktemp -d)
Dienste=()
raeume_auf() {
    ((${#Dienste[@]} == 0)) || kill "${Dienste[@]}" 2>/dev/null || true
    wait
    rm -rf "$Ordner"
}
trap raeume_auf EXIT

# One node on this machine, without keys: nobody else speaks to it.
starte_Slurm() {
    local Rechner
    Rechner=$(hostname -s)
    mkdir -p "$Ordner/slurm/zustand" "$Ordner/slurm/knoten"
    export SLURM_CONF=$Ordner/slurm/slurm.conf
    cat >"$SLURM_CONF" <<CONF
ClusterName=probe
SlurmctldHost=$Rechner(127.0.0.1)
AuthType=auth/none
CredType=cred/none
SlurmUser=root
SlurmdUser=root
SlurmctldPort=26817
SlurmdPort=26818
SlurmctldPidFile=$Ordner/slurm/ctld.pid
SlurmdPidFile=$Ordner/slurm/d.pid
StateSaveLocation=$Ordner/slurm/zustand
SlurmdSpoolDir=$Ordner/slurm/knoten
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
MpiDefault=none
NodeName=$Rechner NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=alle Nodes=$Rechner Default=YES State=UP
CONF
    slurmctld -D -f "$SLURM_CONF" >"$Ordner/slurm/ctld.log" 2>&1 &
    Dienste+=($!)
    slurmd -D -f "$SLURM_CONF" >"$Ordner/slurm/d.log" 2>&1 &
    Dienste+=($!)
    for _ in $(seq 30); do
        [[ $(sinfo --noheader --format=%t 2>/dev/null) != idle ]] || return 0
        sleep 1
    done
    cat "$Ordner"/slurm/*.log >&2
    return 1
}

cp -r "$Wurzel/data" "$Ordner/projekt"
cat >"$Ordner/u.csv" <<'CSV'
name,distribution,a,b,c,correlated_with,rank_correlation
"Koc[,0]",lognormal,120,1.8,,,
CSV
Wunsch=(--all --sample "$Ordner/u.csv" --draws 25)
mkdir "$Ordner/teile"

((eigenes == 0)) || starte_Slurm
if sinfo --noheader >/dev/null 2>&1; then
    echo "through the queue of Slurm"
    letzte=$("$Slurm/starte.sh" 4 "$Ordner/projekt" "$Ordner/teile" "${Wunsch[@]}")
    for _ in $(seq 120); do
        [[ -n $(squeue --noheader --jobs "$letzte" 2>/dev/null) ]] || break
        sleep 1
    done
else
    echo "without Slurm: the commands of the array one by one"
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
