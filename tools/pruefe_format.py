#!/usr/bin/env python3
"""Holds every C++ source of the project to .clang-format.

    tools/pruefe_format.py [project folder]

Fails for a file that clang-format would write differently; `tools/pruefe_format.py --mend` rewrites them.
Another version of clang-format sets other line breaks, so only the one of the packages counts.
"""

import re
import subprocess
import sys
from pathlib import Path

VERSION = 14
ORDNER = ("src", "tests", "bench", "fuzz", "tools")


def quellen(wurzel):
    return sorted(p for o in ORDNER for p in (wurzel / o).rglob("*") if p.suffix in {".h", ".cpp"})


def version(programm):
    try:
        ausgabe = subprocess.run([programm, "--version"], capture_output=True, text=True, check=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return None
    treffer = re.search(r"version (\d+)", ausgabe)
    return int(treffer.group(1)) if treffer else None


def main():
    bessern = "--mend" in sys.argv[1:]
    orte = [a for a in sys.argv[1:] if a != "--mend"]
    wurzel = Path(orte[0]) if orte else Path(__file__).resolve().parent.parent
    programm = next((p for p in (f"clang-format-{VERSION}", "clang-format") if version(p) == VERSION), None)
    if programm is None:
        print(f"clang-format {VERSION} is missing: apt-get install clang-format")
        return 1
    dateien = quellen(wurzel)
    art = ["-i"] if bessern else ["--dry-run", "--Werror"]
    lauf = subprocess.run([programm, *art, *map(str, dateien)], capture_output=True, text=True)
    if lauf.returncode == 0:
        print(f"{len(dateien)} files keep to .clang-format")
        return 0
    fremd = sorted({z.split(":")[0] for z in lauf.stderr.splitlines() if "clang-format-violations" in z})
    print("\n".join(fremd) if fremd else lauf.stderr)
    print("tools/pruefe_format.py --mend rewrites them")
    return 1


if __name__ == "__main__":
    sys.exit(main())
