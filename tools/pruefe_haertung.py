#!/usr/bin/env python3
"""Looks whether programs are hardened: position independent, relocations read only from the start (full RELRO), with a
guarded stack and checked calls of the C library.

    tools/pruefe_haertung.py PROGRAM...
"""

import re
import subprocess
import sys


def readelf(schalter, programm):
    lauf = subprocess.run(["readelf", "-W", schalter, programm], capture_output=True, text=True, check=True)
    return lauf.stdout


def fehlendes(programm):
    """What the program lacks, by name."""
    kopf, segmente = readelf("-h", programm), readelf("-l", programm)
    dynamisch, symbole = readelf("-d", programm), readelf("--dyn-syms", programm)
    proben = {
        "PIE": re.search(r"Type:\s+DYN", kopf) and "PIE" in dynamisch,
        "RELRO": "GNU_RELRO" in segmente,
        "BIND_NOW": re.search(r"FLAGS.*\b(BIND_)?NOW\b", dynamisch),
        "stack protector": "__stack_chk_fail" in symbole,
        "FORTIFY": re.search(r"__(?!stack)\w+_chk@", symbole),
        "stack that is not executed": not re.search(r"GNU_STACK.*RWE", segmente),
    }
    return [name for name, gefunden in proben.items() if not gefunden]


def main(programme):
    maengel = 0
    for programm in programme:
        for name in fehlendes(programm):
            print(f"{programm}: {name} is missing")
            maengel += 1
    print(f"{len(programme)} programs, {maengel} of it missing")
    return 1 if maengel or not programme else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
