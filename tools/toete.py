#!/usr/bin/env python3
"""Kills sessions and batches at any moment and looks whether every file is whole afterwards.

    tools/toete.py KILLS VARNOK-BATCH TEST_SESSION DATA [SEED]

Half of the kills go to a session that saves, copies, renames, deletes, restores and reports without end, half to a batch that
writes all its outputs. After each kill every record, backup and output is the old one or the new one, and none is gone.
"""

import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SICHERUNG = re.compile(r"\d{4}-\d\d-\d\d \d\d-\d\d-\d\d( \d+)?")
RESTE = re.compile(r"\.[a-z2-9]{8}$")  # what was being written


def rufe(*worte, umgebung):
    return subprocess.run([str(w) for w in worte], capture_output=True, timeout=300, env=umgebung)


def toete(worte, nach, umgebung):
    prozess = subprocess.Popen([str(w) for w in worte], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=umgebung)
    time.sleep(nach)
    lief = prozess.poll() is None
    prozess.kill()
    prozess.wait()
    return lief


def fordere(bedingung, was):
    if not bedingung:
        raise SystemExit(f"not whole: {was}")


def pruefe_saetze(projekt, anfang):
    """No record of the start is gone or torn; the one in work is a whole one."""
    eingabe = projekt / "input"
    for name, inhalt in anfang.items():
        fordere((eingabe / name).is_file(), f"{name} is gone")
        jetzt = (eingabe / name).read_bytes()
        if name.startswith("Programcheck."):
            fordere(jetzt.endswith(b"\n") and jetzt.count(b"\n") >= inhalt.count(b"\n") - 1, name)
        else:
            fordere(jetzt == inhalt, name)
    for datei in eingabe.glob("*.sce"):
        fordere(datei.read_bytes().endswith(b"\n"), datei.name)


def pruefe_sicherungen(projekt):
    for ordner in (projekt / "backup").glob("*"):
        if not SICHERUNG.fullmatch(ordner.name):
            fordere(ordner.name.startswith("unfinished ") or ordner.name.startswith("unsaved"), ordner.name)
            continue
        dateien = list(ordner.iterdir())
        fordere(dateien, f"{ordner.name} is empty")
        for datei in dateien:
            fordere(not RESTE.search(datei.name) and datei.read_bytes().endswith(b"\n"), f"{ordner.name}/{datei.name}")


def pruefe_ausgaben(ordner):
    for datei in ordner.rglob("*"):
        if not datei.is_file() or RESTE.search(datei.name):
            continue
        inhalt = datei.read_bytes()
        if datei.suffix == ".json":
            json.loads(inhalt)
        elif datei.suffix == ".csv":
            fordere(inhalt.endswith(b"\r\n"), datei)
        elif datei.suffix == ".rtf":
            fordere(inhalt.rstrip().endswith(b"}"), datei)
        elif datei.parent.name == "days":
            fordere(inhalt.count(b"\n") == 3651, datei)


def main(anzahl, stapelprogramm, sitzung, daten, saat=1):
    zufall = random.Random(int(saat))
    getroffen = 0
    with tempfile.TemporaryDirectory() as wurzel:
        projekt = Path(wurzel) / "project"
        shutil.copytree(Path(daten) / "input", projekt / "input")
        for datei in (projekt / "input").iterdir():
            os.utime(datei, (1e9, 1e9))
        os.utime(projekt / "input" / "Programcheck.vnk")
        ausgaben = projekt / "output"
        (ausgaben / "days").mkdir(parents=True)
        anfang = {p.name: p.read_bytes() for p in (projekt / "input").iterdir()}
        umgebung = dict(os.environ, QT_QPA_PLATFORM="offscreen", VARNOK_PROBEPROJEKT=str(projekt))
        stapel = [stapelprogramm, "--all", "--quiet", "--json", ausgaben / "r.json", "--csv", ausgaben / "r.csv", "--series",
                  ausgaben / "days", "--report", ausgaben, projekt]
        for i in range(int(anzahl)):
            if i % 2:
                getroffen += toete(stapel, zufall.uniform(0.02, 1.2), umgebung)
            else:
                getroffen += toete([sitzung, "--gtest_filter=Auftrag.Ohne_Ende"], zufall.uniform(0.1, 0.9), umgebung)
            pruefe_saetze(projekt, anfang)
            pruefe_sicherungen(projekt)
            pruefe_ausgaben(ausgaben)
        fordere(getroffen > int(anzahl) // 2, f"only {getroffen} of {anzahl} were still at work when they were killed")
        fordere(list((projekt / "backup").glob("????-*")), "no backup was ever made")
        ende = rufe(stapelprogramm, "--quiet", "--simulation", "Vines, Compound D", projekt, umgebung=umgebung)
        fordere(ende.returncode == 0, ende.stderr.decode())
    print(f"{anzahl} kills, {getroffen} of programs at work: every file was whole")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
