#!/usr/bin/env python3
"""Writes a project of many small simulations, each with three records of its own, to measure varnok-batch on.

    tools/erzeuge_viele.py FOLDER [--anzahl 10000] [--schwer]

One study under SFO, one application a year, constant climate; with --schwer twenty irregular applications a year kept
separate, two metabolites in sequence, weather. The same arguments always give the same bytes.
"""

import argparse
from dataclasses import replace
from pathlib import Path

import erzeuge_klima as klima
from erzeuge_daten import (
    AKKUMULATION,
    DFOP,
    EINZELN,
    FOMC,
    GETRENNT,
    HS,
    SEQUENZ,
    UNREGELMAESSIG,
    Applikation,
    Stoff,
    Studie,
    Szenario,
    Wirkstoffsatz,
    applikationssatz,
    szenariosatz,
    wirkstoffsatz,
)

MITTE = Stoff(DT50=50)


def streuung(nummer, schritt):
    """A number from 0 to below 1 that looks drawn and is not: the multiples of an irrational number."""
    return nummer * schritt % 1


def wirkstoff(nummer, schwer):
    stoff = replace(MITTE, DT50=round(5 + 200 * streuung(nummer, 0.6180339887498949), 2), KOC=20 + nummer % 977)
    name = f"Compound {nummer}"
    if not schwer:
        return Wirkstoffsatz(name, 300, [Studie("Field study", stoff)])
    kinetik = (DFOP, HS, FOMC)[nummer % 3]
    stoff = replace(stoff, Kinetik=kinetik, DFOP=(stoff.DT50 / 4, stoff.DT50 * 3, 0.6), FOMC=(0.9, stoff.DT50), HS=(20, 90, 12))
    studie = Studie("Field study", stoff, replace(MITTE, DT50=74, KOC=85), replace(MITTE, DT50=110, KOC=60))
    return Wirkstoffsatz(name, 300, [studie], Schema=SEQUENZ, Rueckstaende=GETRENNT)


def applikation(nummer, schwer):
    rate = round(50 + 1950 * streuung(nummer, 0.7548776662466927), 1)
    monat, tag = 1 + nummer % 12, 1 + nummer % 28
    if not schwer:
        return Applikation(EINZELN, AKKUMULATION, monat, tag, Rate=rate, Interzeption=nummer % 90)
    tabelle = [(1 + (7 * i + nummer) % 13 + 14 * (i % 2), 2 + i // 2, rate, 5 * i % 60) for i in range(20)]
    return Applikation(UNREGELMAESSIG, AKKUMULATION, monat, tag, Rate=rate, Anzahl=20, Tabelle=tabelle)


def szenario(nummer, schwer):
    kohlenstoff = round(0.5 + 2.5 * streuung(nummer, 0.5698402909980532), 2)
    return Szenario("Loam", Kohlenstoff=kohlenstoff, Temperatur=8 + nummer % 18, Klima=klima.NAME if schwer else None)


def dateien(nummer, schwer):
    name = f"Field {nummer:05d}"
    yield name + ".che", wirkstoffsatz(wirkstoff(nummer, schwer))
    yield name + ".app", applikationssatz(applikation(nummer, schwer))
    yield name + ".sce", szenariosatz(szenario(nummer, schwer))
    yield name + ".vnk", [f"Field {nummer} of many", name, name, name]


def main():
    argumente = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    argumente.add_argument("ordner", type=Path)
    argumente.add_argument("--anzahl", type=int, default=10000)
    argumente.add_argument("--schwer", action="store_true")
    a = argumente.parse_args()
    eingabe = a.ordner / "input"
    eingabe.mkdir(parents=True, exist_ok=True)
    (a.ordner / "output").mkdir(exist_ok=True)
    if a.schwer:
        (eingabe / f"{klima.NAME}.cli").write_bytes(klima.klimadatei())
    for nummer in range(a.anzahl):
        for name, zeilen in dateien(nummer, a.schwer):
            (eingabe / name).write_bytes("".join(zeile + "\r\n" for zeile in zeilen).encode("cp1252"))


if __name__ == "__main__":
    main()
