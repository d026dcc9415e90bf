#!/usr/bin/env python3
"""A project full of traps is opened, calculated, saved, reported, restored and ended: nothing outside of it changes.

    feindliches_projekt.py VARNOK-BATCH TEST_SESSION DATA
"""

import hashlib
import os
import shutil
import stat
import subprocess
import sys
import tempfile
from pathlib import Path

ESC = "\x1b]0;title\x07\x1b[31m"
HTML = '<img src="http://127.0.0.1:9/x.png">&<b>'


def verzeichnis(ordner):
    """Everything below a folder with kind, rights, time and content."""
    liste = {}
    for pfad in [ordner, *sorted(ordner.rglob("*"))]:
        angaben = pfad.lstat()
        inhalt = ""
        if pfad.is_symlink():
            inhalt = os.readlink(pfad)
        elif stat.S_ISREG(angaben.st_mode):
            inhalt = hashlib.sha256(pfad.read_bytes()).hexdigest()
        liste[str(pfad.relative_to(ordner))] = (angaben.st_mode, angaben.st_size, angaben.st_mtime_ns, inhalt)
    return liste


def lege_fremdes_an(fremd):
    for name in ("a folder", "a folder/deep", "empty"):
        (fremd / name).mkdir()
    for name in ("mine.txt", ".profile", "a folder/mine", "a folder/deep/mine", "record.che", "simulation.vnk", "notes.sce"):
        (fremd / name).write_text(f"of the user: {name}\nsecond\nthird\nfourth\nfifth\n")


def verknuepfe(projekt, fremd):
    """Links of every kind, to what is there and to what is not."""
    for name, ziel in {
        "VARNOK.ini": ".profile",
        ".varnok.lock": "mine.txt",
        "Diagram.txt": "mine.txt",
        "rot.bmp": "mine.txt",
        "output/test.txt": "mine.txt",
        "output/Detailed Results - Parent.tab": "not there.tab",
        "output/run.csv": "mine.txt",
        "output/days": "a folder",
        "input/Foreign.che": "record.che",
        "input/Foreign.vnk": "simulation.vnk",
        "input/Foreign.sce": "notes.sce",
        "input/Other.che": ".profile",
        "input/Dangling.app": "not there.app",
        "input/new scenario1.sce": "not there.sce",
        "input/copy of Programcheck.che": ".profile",
        "input/copy of Programcheck.app": "not there either.app",
        "backup/2001-01-01 00-00-00": "a folder",
        "backup/2001-01-02 00-00-00/deep": "a folder",
        "backup/2001-01-02 00-00-00/Programcheck.che": "record.che",
        "backup/unfinished 1": "a folder",
    }.items():
        (projekt / name).parent.mkdir(parents=True, exist_ok=True)
        (projekt / name).symlink_to(fremd / ziel)
    (projekt / "input" / "relative.sce").symlink_to("../../outside/notes.sce")
    (projekt / "input" / "circle.app").symlink_to("circle.app")


def stelle_fallen(projekt):
    eingabe = projekt / "input"
    os.mkfifo(eingabe / "pipe.che")
    os.mkfifo(eingabe / "Pipe.vnk")
    os.mkfifo(projekt / "tooltips.uk")
    try:
        os.mknod(eingabe / "device.sce", stat.S_IFCHR | 0o600, os.makedev(1, 5))
    except OSError:
        pass  # needs a right that not everybody has
    (eingabe / "folder.che").mkdir()
    (eingabe / "long line.che").write_bytes(b"x" * (12 << 20))
    (eingabe / "large.app").write_bytes(b"y\n" * (9 << 20))
    (eingabe / f"{ESC}.che").write_text("a name that steers a terminal")
    (eingabe / HTML.replace("/", "_")).with_suffix(".app").write_text("a name of HTML")
    boese = {
        "Up": "../../outside/mine",
        "Shell": "$(touch /tmp/x); `id`; 'x'",
        "Markup": HTML,
        "Terminal": ESC,
    }
    for name, text in boese.items():
        (eingabe / f"{name}.vnk").write_bytes(f"{text}\r\nProgramcheck\r\nProgramcheck\r\nProgramcheck\r\n".encode("cp1252"))
        (eingabe / f"{name} 2.vnk").write_bytes(f"x\r\n{text}\r\n{text}\r\n../../outside/notes\r\n".encode("cp1252"))
    for ordner in projekt.glob("backup/2001-01-02*"):
        (ordner / "..evil.che").write_text("x")


def feindliche_texte(projekt):
    """A record whose every text is meant for something else."""
    eingabe = projekt / "input"
    satz = (eingabe / "Programcheck.che").read_bytes().decode("cp1252")
    satz = satz.replace("Compound A", HTML + ESC)
    (eingabe / "Programcheck.che").write_bytes(satz.encode("cp1252"))


def rufe(*worte, **mehr):
    return subprocess.run([str(w) for w in worte], capture_output=True, timeout=300, **mehr)


def pruefe_Meldungen(lauf):
    text = lauf.stdout + lauf.stderr
    steuernde = [z for z in text if z < 32 and z not in b"\n\r\t"]
    assert not steuernde, f"control characters in a message: {text[:400]!r}"


def main(stapelprogramm, sitzung, daten):
    with tempfile.TemporaryDirectory() as wurzel:
        wurzel = Path(wurzel)
        fremd, projekt = wurzel / "outside", wurzel / "project"
        fremd.mkdir()
        projekt.mkdir()
        lege_fremdes_an(fremd)
        shutil.copytree(Path(daten) / "input", projekt / "input")
        for datei in (projekt / "input").iterdir():
            os.utime(datei, (1e9, 1e9))
        verknuepfe(projekt, fremd)
        stelle_fallen(projekt)
        feindliche_texte(projekt)
        os.utime(projekt / "input" / "Programcheck.vnk")
        vorher, daneben = verzeichnis(fremd), set(os.listdir(wurzel))
        umgebung = dict(os.environ, HOME=str(fremd), QT_QPA_PLATFORM="offscreen", VARNOK_PROBEPROJEKT=str(projekt))
        del_lauf = rufe(stapelprogramm, "--all", "--csv", projekt / "output" / "run.csv", "--report", projekt / "output", "--extended",
                        projekt, cwd=projekt, env=umgebung)
        assert del_lauf.returncode == 1, del_lauf.stderr.decode(errors="replace")  # the records at fault are told
        pruefe_Meldungen(del_lauf)
        assert (projekt / "output" / "run.csv").is_file() and not (projekt / "output" / "run.csv").is_symlink()
        for verboten in ("VARNOK.ini", "Diagram.txt", "input/Programcheck.che"):
            assert rufe(stapelprogramm, "--csv", projekt / verboten, projekt, env=umgebung).returncode == 2, verboten
        tag = rufe(sitzung, "--gtest_filter=Auftrag.Ein_Tag", cwd=projekt, env=umgebung)
        assert tag.returncode == 0 and b"SKIPPED" not in tag.stdout, tag.stdout.decode(errors="replace")[-4000:]
        nachher = verzeichnis(fremd)
        anders = {n for n in vorher.keys() | nachher.keys() if vorher.get(n) != nachher.get(n)}
        assert not anders, f"changed outside of the project: {sorted(anders)}"
        assert set(os.listdir(wurzel)) == daneben
        for name in ("backup/2001-01-01 00-00-00", "output/test.txt"):
            assert (projekt / name).is_symlink(), f"{name}: what the program was not asked for stays as it was"
    print("nothing outside changed")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
