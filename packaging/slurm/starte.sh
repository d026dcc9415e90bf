#!/usr/bin/env bash
# Submits a job array of so many parts and a job that joins them when all have ended well.
#
#     starte.sh PARTS PROJECT RESULTS [options of varnok-batch ...]
set -euo pipefail

if (($# < 3)); then
    echo "starte.sh PARTS PROJECT RESULTS [options of varnok-batch ...]" >&2
    exit 2
fi
Ort=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
Teile=$1
Projekt=$(realpath "$2")
Ergebnisse=$(realpath -m "$3")
shift 3
mkdir -p "$Ergebnisse"

Feld=$(sbatch --parsable --array="0-$((Teile - 1))" --output="$Ergebnisse/part%a.log" \
    "$Ort/feld.sbatch" "$Projekt" "$Ergebnisse" "$@")
sbatch --parsable --dependency="afterok:$Feld" --output="$Ergebnisse/merge.log" "$Ort/verbinden.sbatch" "$Ergebnisse"
