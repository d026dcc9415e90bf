#!/usr/bin/env python3
"""Holds the includes below src/ against the table in tools/schichten.json.

    tools/pruefe_includes.py [project folder]

A folder includes its own headers, those of the folders that its row allows, the C++ library, and what
its row allows of other libraries. The check fails for any other include, for headers that include each
other in a circle, for two files of one name (main.cpp apart), and for an entry of "ausnahmen" that nothing
needs any more. An exception is
{"datei": "src/...", "include": "...", "grund": "..."}.
"""

import json
import re
import sys
from fnmatch import fnmatchcase
from pathlib import Path

from quelltext import nur_code, quelldateien, zeile_von

_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"(?P<eigen>[^"\n]*)"|<(?P<fremd>[^>\n]*)>)', re.MULTILINE)


def includes(text):
    """(line, name, stands in quotes) of every include."""
    for treffer in _INCLUDE.finditer(nur_code(text)):
        art = "eigen" if treffer.group("eigen") is not None else "fremd"
        anfang, ende = treffer.span(art)  # the name itself was blanked out with the other quoted texts
        yield zeile_von(text, anfang), text[anfang:ende], art == "eigen"


def ordner_von(datei, schichten):
    """The row of the table that a file belongs to, None without one."""
    treffer = [ordner for ordner in schichten if str(datei).startswith(ordner + "/")]
    return max(treffer, key=len, default=None)


def bibliothek_von(name, fremd):
    """The library of a header; a name in full counts before a pattern."""
    for bibliothek, muster in fremd.items():
        if name in muster:
            return bibliothek
    return next((b for b, muster in fremd.items() if any(fnmatchcase(name, m) for m in muster)), None)


def einwand(name, eigen, ordner, tabelle, dateien):
    """What speaks against an include of a file of that folder, None if nothing does."""
    schichten = tabelle["schichten"]
    if eigen and not name.endswith(".moc"):
        if Path(name) not in dateien:
            return f'"{name}" is no file below src/ (includes are written from src/ on)'
        ziel = ordner_von(name, schichten)
        if ziel != ordner and ziel not in schichten[ordner]["darf"]:
            return f'{ordner} may not include {ziel} ("{name}")'
    elif not eigen:
        bibliothek = bibliothek_von(name, tabelle["fremd"])
        if bibliothek is None:
            return f"<{name}> is of no library in tools/schichten.json"
        if bibliothek not in tabelle["ueberall"] + schichten[ordner]["fremd"]:
            return f"{ordner} may not use {bibliothek} (<{name}>)"
    return None


def kreise(graph):
    """Circles of a directed graph, each as a list of its nodes in order; empty if there is none."""
    gefunden, fertig = [], set()

    def besuche(knoten, weg):
        if knoten in weg:
            gefunden.append(weg[weg.index(knoten):] + [knoten])
        elif knoten not in fertig:
            for naechster in graph.get(knoten, ()):
                besuche(naechster, weg + [knoten])
            fertig.add(knoten)

    for anfang in graph:
        besuche(anfang, [])
    return gefunden


def gleichnamige(dateien):
    """Files that share their name with another one; who looks for a name shall find one file."""
    orte = {}
    for datei in dateien:
        if datei.name != "main.cpp":
            orte.setdefault(datei.name, []).append(f"src/{datei}")
    return [f"{name}: two files of one name: {', '.join(o)}" for name, o in orte.items() if len(o) > 1]


def pruefe(wurzel):
    """All objections against the tree, as lines of text."""
    tabelle = json.loads((wurzel / "tools/schichten.json").read_text(encoding="utf-8"))
    schichten = tabelle["schichten"]
    dateien = quelldateien(wurzel)
    unbenutzt = {(a["datei"], a["include"]) for a in tabelle["ausnahmen"]}
    ausnahmen = frozenset(unbenutzt)
    befunde, graph = gleichnamige(dateien), {}

    for datei in dateien:
        ordner = ordner_von(datei, schichten)
        if ordner is None:
            befunde.append(f"src/{datei}: its folder is missing in tools/schichten.json")
            continue
        text = (wurzel / "src" / datei).read_text(encoding="utf-8")
        for zeile, name, eigen in includes(text):
            if eigen:
                graph.setdefault(str(datei), []).append(name)
            grund = einwand(name, eigen, ordner, tabelle, dateien)
            if grund and (f"src/{datei}", name) in ausnahmen:
                unbenutzt.discard((f"src/{datei}", name))
            elif grund:
                befunde.append(f"src/{datei}:{zeile}: {grund}")

    befunde += [f"src/{kreis[0]}: headers in a circle: {' -> '.join(kreis)}" for kreis in kreise(graph)]
    erlaubt = {ordner: reihe["darf"] for ordner, reihe in schichten.items()}
    befunde += [f"tools/schichten.json: folders in a circle: {' -> '.join(kreis)}" for kreis in kreise(erlaubt)]
    befunde += [f"tools/schichten.json: exception no longer needed: {d} includes {i}" for d, i in sorted(unbenutzt)]
    return befunde


def main():
    wurzel = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    befunde = pruefe(wurzel)
    print("\n".join(befunde) if befunde else f"{len(quelldateien(wurzel))} files keep to the table")
    return 1 if befunde else 0


if __name__ == "__main__":
    sys.exit(main())
