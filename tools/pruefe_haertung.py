#!/usr/bin/env python3
"""Looks whether programs are hardened: position independent, relocations read only from the start (full RELRO), with a
guarded stack and checked calls of the C library. A program whose calls are all known to fit shows none of these: there the
commands count that compile it.

    tools/pruefe_haertung.py compile_commands.json PROGRAM...
"""

import json
import re
import subprocess
import sys
from pathlib import Path


def readelf(schalter, programm):
    lauf = subprocess.run(["readelf", "-W", schalter, programm], capture_output=True, text=True, check=True)
    return lauf.stdout


def ungeprueft(befehle):
    """Files of the programs that are compiled without checked calls."""
    quellen = Path(__file__).resolve().parent.parent / "src"
    eigene = [b for b in json.loads(Path(befehle).read_text()) if quellen in Path(b["directory"], b["file"]).resolve().parents]
    return [b["file"] for b in eigene if not re.search(r"-O[23s].*-D_FORTIFY_SOURCE=[23]", b["command"])] if eigene else ["src"]


def fehlendes(programm):
    """What the program lacks, by name."""
    kopf, segmente = readelf("-h", programm), readelf("-l", programm)
    dynamisch, symbole = readelf("-d", programm), readelf("--dyn-syms", programm)
    proben = {
        "PIE": re.search(r"Type:\s+DYN", kopf) and "PIE" in dynamisch,
        "RELRO": "GNU_RELRO" in segmente,
        "BIND_NOW": re.search(r"FLAGS.*\b(BIND_)?NOW\b", dynamisch),
        "stack protector": "__stack_chk_fail" in symbole,
        "stack that is not executed": not re.search(r"GNU_STACK.*RWE", segmente),
    }
    return [name for name, gefunden in proben.items() if not gefunden]


def main(befehle, *programme):
    maengel = 0
    for datei in ungeprueft(befehle):
        print(f"{datei}: compiled without FORTIFY")
        maengel += 1
    if not any(re.search(r"__(?!stack)\w+_chk@", readelf("--dyn-syms", p)) for p in programme):
        print("no program has a checked call")
        maengel += 1
    for programm in programme:
        for name in fehlendes(programm):
            print(f"{programm}: {name} is missing")
            maengel += 1
    print(f"{len(programme)} programs, {maengel} of it missing")
    return 1 if maengel or not programme else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
