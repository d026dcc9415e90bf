#!/usr/bin/env python3
"""Writes the records of data/input: the templates, the start simulation and the examples.

The cases are the tables below; change them and run

    tools/erzeuge_daten.py              writes the files
    tools/erzeuge_daten.py --pruefe     says what differs and changes nothing

The same tables always give the same bytes. All names are made up. A DT50 of the tables is written as
the rate constant ln(2)/DT50 that the records hold.
"""

import argparse
import math
import sys
from dataclasses import dataclass, field
from pathlib import Path

SFO, DFOP, FOMC, HS = 0, 1, 2, 3
NUR_WIRKSTOFF, EIN_METABOLIT, PARALLEL, SEQUENZ = 0, 1, 2, 3
MG, MIKROGRAMM = 0, 1
ZUSAMMEN, GETRENNT, GETRENNT_IM_JAHR = 0, 1, 2  # residues of several applications
MONATE, EU = 0, 1  # list of averaging windows
JAEHRLICH, HINTERGRUND, AKKUMULATION = 0, 1, 2
EINZELN, REGELMAESSIG, UNREGELMAESSIG = 0, 1, 2


@dataclass
class Stoff:
    """One compound in one study. `DT50` is also that of the SFO fit behind another kinetics, in days."""

    DT50: float
    KOC: float = 100
    Kinetik: int = SFO
    DFOP: tuple = None  # DT50 of the fast phase, DT50 of the slow phase, fraction g of the fast phase
    FOMC: tuple = None  # alpha, beta in days
    HS: tuple = None  # DT50 before and after the break, break time in days
    Q10: float = 2.58
    Walker: float = 0.7
    TRef: float = 20


UNBENUTZT = Stoff(DT50=100)


@dataclass
class Studie:
    Name: str
    Wirkstoff: Stoff
    Met_1: Stoff = field(default_factory=lambda: UNBENUTZT)
    Met_2: Stoff = field(default_factory=lambda: UNBENUTZT)


@dataclass
class Wirkstoffsatz:
    Name: str
    Molmasse: float
    Studien: list
    Schema: int = NUR_WIRKSTOFF
    Met_1: tuple = ("Metabolite M1", 200, 50)  # name, molar mass in g/mol, formation in %
    Met_2: tuple = ("Metabolite M2", 200, 25)
    Einheit: int = MG
    Rueckstaende: int = ZUSAMMEN
    TWA: int = EU
    Ausgabename: tuple = (1, 1, 1, 1, 0, 0, 0)


@dataclass
class Applikation:
    Art: int
    PEC: int
    Monat: int
    Tag: int
    Rate: float = 1000  # g/ha
    Interzeption: float = 0  # %
    Anzahl: int = 2
    Intervall: int = 14  # d
    Tabelle: list = None  # rows of day, month, rate, interception


@dataclass
class Szenario:
    Boden: str
    Dichte: float = 1.5  # kg/L
    Tiefe: float = 5  # cm
    Plateautiefe: float = 20  # cm
    Kohlenstoff: float = 1.5  # %
    Feldkapazitaet: float = 30  # Vol%
    Welkepunkt: float = 10  # Vol%
    Temperatur: int = 20  # degrees C
    Klima: str = None  # name of a climate file: variable climate


WIRKSTOFFE = {
    "Programcheck": Wirkstoffsatz("Compound A", 300, [Studie("Field study", Stoff(DT50=50, KOC=100))]),
    "Compound B, three field soils": Wirkstoffsatz(
        "Compound B",
        318.4,
        [
            Studie("Sandy loam, north", Stoff(DT50=28, KOC=240)),
            Studie("Silt loam, centre", Stoff(DT50=61.5, KOC=310)),
            Studie("Clay loam, south", Stoff(DT50=112, KOC=275)),
        ],
    ),
    "Compound C with one metabolite": Wirkstoffsatz(
        "Compound C",
        405.2,
        [
            Studie(
                "Laboratory, aerobic, biphasic",
                Stoff(DT50=22, KOC=1250, Kinetik=DFOP, DFOP=(6.5, 95, 0.62)),
                Stoff(DT50=74, KOC=85),
            ),
            Studie("Field, first order", Stoff(DT50=17, KOC=1100), Stoff(DT50=58, KOC=110)),
        ],
        Schema=EIN_METABOLIT,
        Met_1=("Metabolite C1", 291.3, 46),
        Rueckstaende=GETRENNT,
    ),
    "Compound D with two parallel metabolites": Wirkstoffsatz(
        "Compound D",
        352.8,
        [
            Studie(
                "Field, multi-compartment",
                Stoff(DT50=14, KOC=560, Kinetik=FOMC, FOMC=(0.92, 11.5)),
                Stoff(DT50=45, KOC=60),
                Stoff(DT50=120, KOC=210, Kinetik=DFOP, DFOP=(21, 240, 0.4)),
            ),
        ],
        Schema=PARALLEL,
        Met_1=("Metabolite D1", 238.7, 38),
        Met_2=("Metabolite D2", 310.7, 22),
        Einheit=MIKROGRAMM,
        Rueckstaende=GETRENNT,
        TWA=MONATE,
    ),
    "Compound E with two metabolites in sequence": Wirkstoffsatz(
        "Compound E",
        287.6,
        [
            Studie(
                "Soil 1, first order",
                Stoff(DT50=9.5, KOC=150),
                Stoff(DT50=38, KOC=42, Kinetik=DFOP, DFOP=(12, 105, 0.55)),
                Stoff(DT50=140, KOC=520),
            ),
            Studie(
                "Soil 2, biphasic",
                Stoff(DT50=12, KOC=165, Kinetik=DFOP, DFOP=(3.8, 64, 0.7)),
                Stoff(DT50=41, KOC=47),
                Stoff(DT50=155, KOC=490),
            ),
            Studie(
                "Soil 3, multi-compartment",
                Stoff(DT50=11, KOC=139, Kinetik=FOMC, FOMC=(1.35, 13)),
                Stoff(DT50=33, KOC=39),
                Stoff(DT50=128, KOC=545, Kinetik=DFOP, DFOP=(30, 260, 0.35)),
            ),
            Studie(
                "Soil 4, hockey stick",
                Stoff(DT50=8, KOC=171, Kinetik=HS, HS=(5.5, 40, 18)),
                Stoff(DT50=36, KOC=51),
                Stoff(DT50=133, KOC=505),
            ),
            Studie("Soil 5, first order", Stoff(DT50=15.2, KOC=144), Stoff(DT50=52, KOC=44), Stoff(DT50=171, KOC=530)),
            Studie(
                "Soil 6, trial at 15 °C",
                Stoff(DT50=18.4, KOC=158, TRef=15),
                Stoff(DT50=60, KOC=40, TRef=15),
                Stoff(DT50=190, KOC=515, TRef=15),
            ),
        ],
        Schema=SEQUENZ,
        Met_1=("Metabolite E1", 213.5, 64),
        Met_2=("Metabolite E2", 185.5, 35),
        Rueckstaende=GETRENNT_IM_JAHR,
    ),
    "Compound F, hockey stick": Wirkstoffsatz(
        "Compound F",
        446.1,
        [Studie("Field, orchard soil", Stoff(DT50=26, KOC=3400, Kinetik=HS, HS=(15, 130, 35)))],
        Einheit=MIKROGRAMM,
    ),
    "Compound G, slow degradation": Wirkstoffsatz(
        "Compound G",
        371,
        [
            Studie("Worst case of the field trials", Stoff(DT50=295, KOC=4800)),
            Studie("Median of the field trials", Stoff(DT50=180, KOC=4100)),
        ],
        TWA=MONATE,
    ),
    "Compound H with one metabolite": Wirkstoffsatz(
        "Compound H",
        265.9,
        [
            Studie(
                "Laboratory, 20 °C",
                Stoff(DT50=33, KOC=95, Kinetik=DFOP, DFOP=(10, 140, 0.58)),
                Stoff(DT50=88, KOC=24, Kinetik=DFOP, DFOP=(25, 170, 0.45)),
            ),
        ],
        Schema=EIN_METABOLIT,
        Met_1=("Metabolite H1", 182.6, 71),
        Einheit=MIKROGRAMM,
        Rueckstaende=GETRENNT_IM_JAHR,
    ),
    "Compound I, multi-compartment": Wirkstoffsatz(
        "Compound I",
        498.3,
        [Studie("Field, vegetable soil", Stoff(DT50=19, KOC=2100, Kinetik=FOMC, FOMC=(0.8, 9)))],
        Rueckstaende=GETRENNT,
        Ausgabename=(1, 1, 1, 1, 1, 0, 0),
    ),
}

APPLIKATIONEN = {
    "Programcheck": Applikation(EINZELN, JAEHRLICH, Monat=4, Tag=1, Rate=1000),
    "Winter cereals, autumn": Applikation(EINZELN, AKKUMULATION, Monat=10, Tag=15, Rate=600),
    "Maize, spring": Applikation(EINZELN, AKKUMULATION, Monat=5, Tag=10, Rate=750, Interzeption=25),
    "Sugar beet, three splits": Applikation(
        REGELMAESSIG, HINTERGRUND, Monat=4, Tag=20, Rate=350, Interzeption=20, Anzahl=3, Intervall=10
    ),
    "Potatoes, seven treatments": Applikation(
        REGELMAESSIG, AKKUMULATION, Monat=6, Tag=1, Rate=150, Interzeption=50, Anzahl=7, Intervall=7
    ),
    "Apples, twelve treatments": Applikation(
        REGELMAESSIG, JAEHRLICH, Monat=4, Tag=5, Rate=187.5, Interzeption=65, Anzahl=12, Intervall=10
    ),
    "Ornamentals, twenty treatments": Applikation(
        REGELMAESSIG, JAEHRLICH, Monat=3, Tag=1, Rate=80, Interzeption=30, Anzahl=20, Intervall=14
    ),
    "Vines, five treatments": Applikation(
        UNREGELMAESSIG,
        JAEHRLICH,
        Monat=5,
        Tag=15,
        Anzahl=5,
        Tabelle=[(15, 5, 400, 50), (1, 6, 400, 60), (20, 6, 300, 60), (10, 7, 300, 75), (5, 8, 250, 75)],
    ),
    "Oilseed rape, spring and autumn": Applikation(
        UNREGELMAESSIG, HINTERGRUND, Monat=3, Tag=25, Tabelle=[(25, 3, 250, 80), (20, 9, 500, 40)]
    ),
}

SZENARIEN = {
    "Programcheck": Szenario("Standard soil"),
    "Loam, 10 degrees": Szenario("Loam", Dichte=1.45, Kohlenstoff=1.8, Feldkapazitaet=33, Welkepunkt=12, Temperatur=10),
    "Orchard, no tillage": Szenario("Orchard soil, no tillage", Plateautiefe=5, Kohlenstoff=2.2),
    "Sandy loam, variable climate": Szenario(
        "Sandy loam", Kohlenstoff=1.1, Feldkapazitaet=26, Welkepunkt=8.5, Klima="Temperate site"
    ),
}

# Name: description, compound record, application pattern record, scenario record.
SIMULATIONEN = {
    "Programcheck": ("One application, one compound, first order", "Programcheck", "Programcheck", "Programcheck"),
    "Cereals, Compound B": (
        "Autumn treatment, degradation in three soils side by side",
        "Compound B, three field soils",
        "Winter cereals, autumn",
        "Programcheck",
    ),
    "Cereals, Compound B at 10 degrees": (
        "The same at a constant 10 °C",
        "Compound B, three field soils",
        "Winter cereals, autumn",
        "Loam, 10 degrees",
    ),
    "Potatoes, Compound C": (
        "Seven treatments, biphasic parent with one metabolite",
        "Compound C with one metabolite",
        "Potatoes, seven treatments",
        "Programcheck",
    ),
    "Vines, Compound D": (
        "Irregular treatments, two parallel metabolites, results in µg",
        "Compound D with two parallel metabolites",
        "Vines, five treatments",
        "Programcheck",
    ),
    "Sugar beet, Compound E": (
        "Six studies with all four kinetics, two metabolites in sequence",
        "Compound E with two metabolites in sequence",
        "Sugar beet, three splits",
        "Programcheck",
    ),
    "Apples, Compound F": (
        "Permanent crop without tillage, hockey stick kinetics, results in µg",
        "Compound F, hockey stick",
        "Apples, twelve treatments",
        "Orchard, no tillage",
    ),
    "Maize, Compound G": (
        "Slow degradation under variable climate: what builds up over the years",
        "Compound G, slow degradation",
        "Maize, spring",
        "Sandy loam, variable climate",
    ),
    "Maize, Compound G at 10 degrees": (
        "The same at a constant 10 °C",
        "Compound G, slow degradation",
        "Maize, spring",
        "Loam, 10 degrees",
    ),
    "Oilseed rape, Compound H": (
        "Spring and autumn treatment under variable climate, metabolite with biphasic kinetics",
        "Compound H with one metabolite",
        "Oilseed rape, spring and autumn",
        "Sandy loam, variable climate",
    ),
    "Ornamentals, Compound I": (
        "Twenty treatments a year, multi-compartment kinetics",
        "Compound I, multi-compartment",
        "Ornamentals, twenty treatments",
        "Programcheck",
    ),
    "Ornamentals, Compound D": (
        "Twenty treatments a year kept separate, two parallel metabolites",
        "Compound D with two parallel metabolites",
        "Ornamentals, twenty treatments",
        "Loam, 10 degrees",
    ),
}

VORLAGE = "Do not delete this file"
TRENNLINIE = "-" * 47
MONATSLAENGEN = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)


def zahl(wert):
    """General number form: at most 15 significant digits, an exponent below 0.0001 and from 1E+15 on."""
    return f"{wert:.15g}".replace("e", "E")


def zeile(kopf, *werte):
    return "\t".join([kopf, *(wert if isinstance(wert, str) else zahl(wert) for wert in werte)])


def rate(dt50):
    return math.log(2) / dt50


def studienblock(nummer, studie):
    stoffe = (studie.Wirkstoff, studie.Met_1, studie.Met_2)
    dfop = [s.DFOP or (s.DT50, s.DT50, 0.5) for s in stoffe]
    alpha, beta = studie.Wirkstoff.FOMC or (1, 50)
    hs_1, hs_2, tb = studie.Wirkstoff.HS or (studie.Wirkstoff.DT50, studie.Wirkstoff.DT50, 10)
    return [
        zeile(f"Study {nummer}:", studie.Name),
        zeile("KOC (L/kg):", *(s.KOC for s in stoffe)),
        zeile("Q10-factor:", *(s.Q10 for s in stoffe)),
        zeile("Walker-exponent:", *(s.Walker for s in stoffe)),
        zeile("Reference Temperature (°C):", *(s.TRef for s in stoffe)),
        zeile("Kinetics:", *(s.Kinetik for s in stoffe)),
        zeile("SFO k (1/d):", *(rate(s.DT50) for s in stoffe)),
        zeile("FOMC alpha:", alpha),
        zeile("FOMC beta:", beta),
        zeile("DFOP k1 (1/d):", *(rate(d[0]) for d in dfop)),
        zeile("DFOP k2 (1/d):", *(rate(d[1]) for d in dfop)),
        zeile("DFOP  g:", *(d[2] for d in dfop)),
        zeile("HS   k1 (1/d):", rate(hs_1)),
        zeile("HS   k2 (1/d):", rate(hs_2)),
        zeile("HS   Tb (d)", tb),
    ]


def wirkstoffsatz(satz):
    zeilen = [
        "Pesticide data",
        zeile("Unit:", satz.Einheit),
        zeile("Output file name :", *satz.Ausgabename),
        zeile("Separate residues:", satz.Rueckstaende),
        zeile("TWA according to EU:", satz.TWA),
        zeile("Calculation mode:", satz.Schema),
        TRENNLINIE,
        "Degradation kinetics Parameters",
        zeile("Number of studies:", len(satz.Studien)),
    ]
    for nummer, studie in enumerate(satz.Studien, 1):
        zeilen += studienblock(nummer, studie)
    return zeilen + [
        zeile("Compound shown:", 0),
        TRENNLINIE,
        "Metabolism scheme",
        zeile("Type of calculation:", satz.Schema),
        zeile("Parent:", satz.Name, satz.Molmasse),
        zeile("Metabolite 1:", *satz.Met_1),
        zeile("Metabolite 2:", *satz.Met_2),
        TRENNLINIE,
    ]


def ereignisse(satz):
    """The rows that a regular pattern would have as a table: where a user starts who makes it irregular."""
    tag_im_jahr = sum(MONATSLAENGEN[: satz.Monat - 1]) + satz.Tag - 1
    zeilen = []
    for i in range(satz.Anzahl):
        monat, tag = 1, (tag_im_jahr + i * satz.Intervall) % 365 + 1
        while tag > MONATSLAENGEN[monat - 1]:
            tag -= MONATSLAENGEN[monat - 1]
            monat += 1
        zeilen.append((tag, monat, satz.Rate, satz.Interzeption))
    return zeilen


def applikationssatz(satz):
    # The table is part of the record whatever the pattern.
    tabelle = satz.Tabelle or ereignisse(satz)
    return [
        "Application Pattern",
        zeile("Application type:", satz.Art),
        zeile("PEC-Type:", satz.PEC),
        zeile("Regular application date:", satz.Monat, satz.Tag),
        zeile("Application rate (g/ha):", satz.Rate),
        zeile("Crop interception (%):", satz.Interzeption),
        zeile("Time between applications:", satz.Intervall),
        zeile("Number of applications per year:", satz.Anzahl),
        zeile("Date", "Month", "Rate (g/ha)", "Interception (%)"),
        *(zeile(f"{tag:02d}", f"{monat:02d}", menge, interzeption) for tag, monat, menge, interzeption in tabelle),
        TRENNLINIE,
    ]


def szenariosatz(satz):
    return [
        "Soil Parameters",
        zeile("Soil scenario:     ", satz.Boden),
        zeile("Soil density (kg/L):", satz.Dichte),
        zeile("Soil depth (cm):", satz.Tiefe),
        zeile("Plateaudepth:", satz.Plateautiefe),
        zeile("Organic carbon content:", satz.Kohlenstoff),
        zeile("Field capacity (Vol%):", satz.Feldkapazitaet),
        zeile("Wilting point (Vol%):", satz.Welkepunkt),
        zeile("Climatic condition:", satz.Klima or f"{satz.Temperatur} °C constant"),
        zeile("Climate mode:", 1 if satz.Klima else 0),
        zeile("Scenario Temperature:", satz.Temperatur),
        TRENNLINIE,
    ]


def alle_dateien():
    """File name: bytes, for every file that the tables above stand for."""
    arten = (
        (".che", ".chn", WIRKSTOFFE, wirkstoffsatz),
        (".app", ".apn", APPLIKATIONEN, applikationssatz),
        (".sce", ".scn", SZENARIEN, szenariosatz),
    )
    zeilen = {name + ".vnk": list(satz) for name, satz in SIMULATIONEN.items()}
    for endung, vorlage, tabelle, schreibe in arten:
        zeilen |= {name + endung: schreibe(satz) for name, satz in tabelle.items()}
        # A new record and the start simulation begin with the same values.
        zeilen[VORLAGE + vorlage] = schreibe(tabelle["Programcheck"])
    return {name: "".join(z + "\r\n" for z in inhalt).encode("cp1252") for name, inhalt in zeilen.items()}


def abweichungen(ordner):
    """What in the folder differs from the tables; climate files belong to another tool, tips are written by hand."""
    soll = alle_dateien()
    ist = {pfad.name: pfad.read_bytes() for pfad in ordner.glob("*") if pfad.suffix not in (".cli", ".uk")}
    return (
        [f"missing: {name}" for name in sorted(soll.keys() - ist.keys())]
        + [f"not in the tables: {name}" for name in sorted(ist.keys() - soll.keys())]
        + [f"differs: {name}" for name in sorted(soll.keys() & ist.keys()) if soll[name] != ist[name]]
    )


def main():
    argumente = argparse.ArgumentParser(description="Write or check the records of data/input.")
    argumente.add_argument("--pruefe", action="store_true", help="compare only")
    argumente.add_argument("ordner", nargs="?", type=Path, default=Path(__file__).resolve().parent.parent / "data/input")
    wahl = argumente.parse_args()
    if wahl.pruefe:
        befunde = abweichungen(wahl.ordner)
        print("\n".join(befunde) if befunde else "data/input agrees with the tables")
        return 1 if befunde else 0
    wahl.ordner.mkdir(parents=True, exist_ok=True)
    for name, inhalt in alle_dateien().items():
        (wahl.ordner / name).write_bytes(inhalt)
    return 0


if __name__ == "__main__":
    sys.exit(main())
