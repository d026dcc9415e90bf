#!/usr/bin/env python3
"""Writes data/input/Temperate site.cli: one made-up year of weather of a temperate site.

Mild winters, rain all year round, most evapotranspiration in summer. No station was measured for it.
The random numbers come from the generator below, so every Python writes the same bytes.
"""

import math
import sys
from pathlib import Path

NAME = "Temperate site"
TAGE = 365
REGENSUMME = 750.0  # mm
VERDUNSTUNGSSUMME = 600.0  # mm
MITTELTEMPERATUR = 9.6  # degrees C
MONATE = list(zip("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split(), (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)))


class Zufall:
    """Linear congruential generator of 64 bits; the upper half of the state is used."""

    def __init__(self, start):
        self.zustand = start

    def gleichverteilt(self):
        self.zustand = (self.zustand * 6364136223846793005 + 1442695040888963407) % 2**64
        return ((self.zustand >> 32) + 0.5) / 2**32

    def normalverteilt(self):
        return sum(self.gleichverteilt() for _ in range(12)) - 6


def jahresgang(tag, waermster_tag):
    """1 on the warmest day of the year, -1 half a year away from it."""
    return math.cos(2 * math.pi * (tag - waermster_tag) / TAGE)


def skaliere(werte, summe):
    faktor = summe / sum(werte)
    return [wert * faktor for wert in werte]


def regen(zufall):
    """Wet and dry spells: a wet day is followed by another one more often than a dry day."""
    werte, nass = [], False
    for _ in range(TAGE):
        nass = zufall.gleichverteilt() < (0.62 if nass else 0.28)
        werte.append(0.2 - 4.5 * math.log(zufall.gleichverteilt()) if nass else 0.0)
    return skaliere(werte, REGENSUMME)


def verdunstung(zufall, regenwerte):
    werte = []
    for tag in range(TAGE):
        sonne = 0.75 if regenwerte[tag] > 1 else 1.15
        werte.append((1.65 + 1.4 * jahresgang(tag, 188)) * sonne * (0.8 + 0.4 * zufall.gleichverteilt()))
    return skaliere(werte, VERDUNSTUNGSSUMME)


def temperatur(zufall):
    """The day keeps most of the deviation of the day before: warm and cold spells last about a week."""
    werte, abweichung = [], 0.0
    for tag in range(TAGE):
        abweichung = 0.78 * abweichung + 1.7 * zufall.normalverteilt()
        werte.append(8.6 * jahresgang(tag, 203) + abweichung)
    verschiebung = MITTELTEMPERATUR - sum(werte) / TAGE
    return [wert + verschiebung for wert in werte]


def klimadatei():
    zufall = Zufall(20180921)
    regenwerte = regen(zufall)
    verdunstungswerte = verdunstung(zufall, regenwerte)
    temperaturwerte = temperatur(zufall)
    datum = [f"{tag:02d}-{monat}" for monat, laenge in MONATE for tag in range(1, laenge + 1)]
    # Columns 28 to 37 are free for what a station reports beside these values; here they stay blank.
    zeilen = [f"{'Date':<7}{'Rain (mm)':>10}{'PET (mm)':>10}{'':10}{'Temp (°C)':>10}"]
    for tag in range(TAGE):
        zeilen.append(
            f"{datum[tag]:<7}{regenwerte[tag]:10.1f}{verdunstungswerte[tag]:10.1f}{'':10}{temperaturwerte[tag]:10.1f}"
        )
    return "".join(zeile + "\r\n" for zeile in zeilen).encode("cp1252")


def main():
    vorgabe = Path(__file__).resolve().parent.parent / "data/input"
    ordner = Path(sys.argv[1]) if len(sys.argv) > 1 else vorgabe
    ordner.mkdir(parents=True, exist_ok=True)
    (ordner / f"{NAME}.cli").write_bytes(klimadatei())


if __name__ == "__main__":
    main()
