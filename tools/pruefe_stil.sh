#!/usr/bin/env bash
# clang-tidy over all sources with the rules of .clang-tidy; needs a configured build folder (default build/release).
#
#     tools/pruefe_stil.sh [BUILD FOLDER] [REGULAR EXPRESSION OF PATHS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
Ordner=${1:-build/release}
Muster=${2:-/(src|tests|bench)/}

# Sources that a build tool wrote are nobody's to mend.
mapfile -t Quellen < <(python3 - "$Ordner/compile_commands.json" "$Muster" <<'ENDE'
import json, re, sys
dateien = {e["file"] for e in json.load(open(sys.argv[1]))}
print(*sorted(d for d in dateien if re.search(sys.argv[2], d) and "_autogen" not in d and "cmake_pch" not in d), sep="\n")
ENDE
)
printf '%s\0' "${Quellen[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$Ordner" --quiet
echo "${#Quellen[@]} sources keep to .clang-tidy"
