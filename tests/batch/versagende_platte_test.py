#!/usr/bin/env python3
"""varnok-batch on a disk that refuses every n-th flush or write: each output is the new one or the one before, and a call whose
outputs are not all there says so and does not end with 0.

    versagende_platte_test.py VARNOK-BATCH LIBRARY DATA
"""

import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
from pathlib import Path

OPTIONEN = {"--json": "r.json", "--csv": "r.csv", "--json-lines": "r.jsonl", "--records": "records.csv", "--sqlite": "r.db",
            "--series": "series", "--series-full": "full", "--report": "reports"}
ORDNER = ("--series", "--series-full", "--report")


def dateien(ordner):
    return {str(p.relative_to(ordner)): p.read_bytes() for p in sorted(ordner.rglob("*")) if p.is_file()}


def rufe(programm, projekt, ort, wahl, umgebung):
    worte = [programm, "--all", "--quiet", "--jobs", "1"]
    for option in wahl:
        worte += [option, str(ort / OPTIONEN[option])]
    return subprocess.run([*worte, str(projekt)], capture_output=True, timeout=120, env=dict(os.environ, **umgebung))


def fordere(bedingung, *was):
    if not bedingung:
        raise SystemExit(" ".join(str(w) for w in was))


def pruefe_Datenbank(datei):
    with sqlite3.connect(datei) as db:
        fordere(db.execute("PRAGMA integrity_check").fetchone() == ("ok",), datei, "is torn")


def pruefe(option, jetzt, alt, neu, was):
    """No file that is neither the old nor the new one. A report tells its time, and a database is no text to compare."""
    fordere(set(jetzt) <= set(neu) | set(alt), was, "left", sorted(set(jetzt) - set(neu) - set(alt)))
    for name, inhalt in jetzt.items():
        if option == "--report":
            fordere(inhalt.rstrip().endswith(b"}") or inhalt == alt.get(name), was, name, "is torn")
        elif option == "--json-lines":
            fordere(neu[name].startswith(inhalt) and inhalt[-1:] in (b"", b"\n"), was, name, "is torn")
        elif option != "--sqlite":
            fordere(inhalt in (alt.get(name), neu[name]), was, name, "is neither the old nor the new one")


def main(programm, bibliothek, daten):
    versagt = 0
    with tempfile.TemporaryDirectory() as wurzel:
        wurzel = Path(wurzel)
        projekt = wurzel / "project"
        shutil.copytree(Path(daten) / "input", projekt / "input")
        for datei in sorted((projekt / "input").glob("*.vnk"))[3:]:
            datei.unlink()
        for option in OPTIONEN:
            gut = wurzel / "good"
            gut.mkdir()
            fordere(rufe(programm, projekt, gut, [option], {}).returncode == 0, option, "does not work at all")
            neu = dateien(gut)
            for art in ("VERSAGER_FSYNC", "VERSAGER_WRITE"):
                for n in (1, 2, 3, 5):
                    ort = wurzel / "here"
                    ort.mkdir()
                    alt = {}
                    if option not in ORDNER and option != "--sqlite":
                        alt = {OPTIONEN[option]: b"of an earlier call\n"}
                        (ort / OPTIONEN[option]).write_bytes(b"of an earlier call\n")
                    lauf = rufe(programm, projekt, ort, [option], {"LD_PRELOAD": bibliothek, art: str(n)})
                    was, jetzt = f"{option} with {art}={n}:", dateien(ort)
                    jetzt.pop("r.db-journal", None)  # of a transaction that the next call takes back
                    pruefe(option, jetzt, alt, neu, was)
                    if option == "--sqlite" and "r.db" in jetzt:
                        pruefe_Datenbank(ort / "r.db")
                    ganz = option in ("--report", "--sqlite") or jetzt == neu
                    fordere(lauf.returncode != 0 or (ganz and set(jetzt) == set(neu)), was, "status 0, and it is not all there")
                    fordere(lauf.returncode == 0 or b"Cannot " in lauf.stderr, was, "no message:", lauf.stderr)
                    fordere(n > 1 or lauf.returncode != 0, was, "nothing could be written, and the status is 0")
                    versagt += lauf.returncode != 0
                    shutil.rmtree(ort)
            shutil.rmtree(gut)
    print(f"{versagt} calls failed and said so")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
