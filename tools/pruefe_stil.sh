#!/usr/bin/env bash
# clang-tidy over all sources with the rules of .clang-tidy; needs a built folder (default build/release), for the sources
# include what the build writes.
#
#     tools/pruefe_stil.sh [BUILD FOLDER] [REGULAR EXPRESSION OF PATHS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
Ordner=${1:-build/release}
Muster=${2:-/(src|tests|bench|tools)/}

Befehle=$(mktemp -d)
trap 'rm -rf "$Befehle"' EXIT

# The commands without the precompiled headers, which are g++'s own and unreadable here.
# Sources that a build tool wrote are nobody's to mend.
python3 - "$Ordner/compile_commands.json" "$Muster" "$Befehle" <<'ENDE'
import json, pathlib, re, sys

befehle = json.loads(pathlib.Path(sys.argv[1]).read_text())
for b in befehle:
    b["command"] = re.sub(r" (-Winvalid-pch|-fpch-preprocess|-include \S*cmake_pch\.hxx)(?= )", "", b["command"])
ordner = pathlib.Path(sys.argv[3])
(ordner / "compile_commands.json").write_text(json.dumps(befehle))
erzeugt = re.compile("_autogen|_verify_interface_header_sets|cmake_pch")
quellen = sorted({b["file"] for b in befehle if re.search(sys.argv[2], b["file"]) and not erzeugt.search(b["file"])})
(ordner / "quellen").write_text("".join(q + "\0" for q in quellen))
ENDE

# Left out is what it says of headers that are not ours.
xargs -0 -a "$Befehle/quellen" -n 4 -P "$(nproc)" clang-tidy -p "$Befehle" --quiet 2>&1 |
    { grep --line-buffered -Ev '^[0-9]+ warnings? generated\.$' || true; }
echo "$(tr -cd '\0' <"$Befehle/quellen" | wc -c) sources keep to .clang-tidy"
