"""Variants, drawn values and their outputs through the program itself, on the shipped records.

    varianten_test.py VARNOK-BATCH DATA [names of tests ...]
"""

import csv
import hashlib
import json
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAMM, DATEN = (Path(a) for a in sys.argv[1:3])
MIT_METABOLIT = ["--simulation", "Potatoes, Compound C", "--study", "2"]
UNREGELMAESSIG = "Oilseed rape, Compound H"
KOPF = "name,distribution,a,b,c,correlated_with,rank_correlation\n"
ZIEHUNG = KOPF + '"DT50[,0]",lognormal,30,1.5,,,\n"Koc[,0]",lognormal,100,2,,"DT50[,0]",0.3\n'


def abzug(datei):
    """Every row of a database, with the numbers that its tables know each other by."""
    with sqlite3.connect(f"file:{datei}?mode=ro", uri=True) as verbindung:
        return list(verbindung.iterdump())


class Probe(unittest.TestCase):
    def setUp(self):
        halter = tempfile.TemporaryDirectory()
        self.addCleanup(halter.cleanup)
        self.ort = Path(halter.name)
        self.projekt = self.ort / "projekt"
        shutil.copytree(DATEN, self.projekt)

    def schreibe(self, name, text):
        (self.ort / name).write_text(text, encoding="utf-8")
        return self.ort / name

    def rufe(self, *argumente, status=0, projekt=True):
        alle = [PROGRAMM, *argumente] + ([self.projekt] if projekt else [])
        antwort = subprocess.run(alle, capture_output=True, encoding="utf-8")
        self.assertEqual(antwort.returncode, status, antwort.stderr)
        return antwort

    def bytes(self, name):
        return (self.ort / name).read_bytes()


class Ziehungen(Probe):
    def ausgaben(self, name):
        return ["--json-lines", self.ort / f"{name}.jsonl", "--csv", self.ort / f"{name}.csv", "--summary", self.ort / f"{name}.sum",
                "--sqlite", self.ort / f"{name}.db"]

    def test_draws_give_the_same_bytes_whichever_way_they_were_made(self):
        wunsch = [*MIT_METABOLIT, "--sample", self.schreibe("u.csv", ZIEHUNG), "--draws", "400"]
        self.rufe(*wunsch, "--jobs", "1", *self.ausgaben("eins"))
        self.rufe(*wunsch, "--jobs", "2", *self.ausgaben("zwei"))
        for i in range(4):
            self.rufe(*wunsch, "--shard", f"{i}/4", *self.ausgaben(f"teil{i}"))
        for option, endung in (("--json-lines", "jsonl"), ("--csv", "csv"), ("--sqlite", "db")):
            teile = sorted(self.ort.glob(f"teil?.{endung}"))
            self.rufe(option, self.ort / f"alle.{endung}", "--summary", self.ort / f"alle_{endung}.sum", "--merge", *teile, projekt=False)
            self.assertEqual(self.bytes(f"alle_{endung}.sum"), self.bytes("eins.sum"), endung)
        for endung in ("jsonl", "csv"):
            self.assertEqual(self.bytes(f"zwei.{endung}"), self.bytes(f"eins.{endung}"))
            self.assertEqual(self.bytes(f"alle.{endung}"), self.bytes(f"eins.{endung}"))
        self.assertEqual(self.bytes("zwei.sum"), self.bytes("eins.sum"))
        erwartet = abzug(self.ort / "eins.db")
        self.assertGreater(len(erwartet), 400 * 2 * 2)
        self.assertEqual(abzug(self.ort / "zwei.db"), erwartet)
        self.assertEqual(abzug(self.ort / "alle.db"), erwartet)
        self.assertIn("400", self.bytes("eins.sum").decode().splitlines()[1].split(","))

    def test_seed_is_1_where_none_is_given(self):
        wunsch = [*MIT_METABOLIT, "--sample", self.schreibe("u.csv", ZIEHUNG), "--draws", "5", "--json-lines", "-"]
        ohne = self.rufe(*wunsch).stdout
        self.assertEqual(self.rufe(*wunsch, "--seed", "1").stdout, ohne)
        self.assertNotEqual(self.rufe(*wunsch, "--seed", "2").stdout, ohne)

    def test_wrong_parameter_is_told_with_its_column(self):
        for zeile, spalte in (("Koc,normal,100,0,,,", "b"), ("Koc,lognormal,0,2,,,", "a"), ("Koc,lognormal,5,1,,,", "b"),
                              ("Koc,uniform,3,2,,,", "b"), ("Koc,triangular,1,0,3,,", "b"), ("Koc,triangular,1,1,1,,", "c")):
            with self.subTest(zeile=zeile):
                datei = self.schreibe("u.csv", KOPF + "rate,uniform,1,2,,,\n" + zeile + "\n")
                antwort = self.rufe("--sample", datei, "--draws", "3", "--json", "-", status=2)
                self.assertIn(f"row 2 (line 3), column {spalte}: ", antwort.stderr)
                self.assertEqual(antwort.stdout, "")

    def test_bad_row_among_100000_is_told_before_anything_runs(self):
        datei = self.schreibe("plan.csv", "rate,Koc\n" + "100,50\n" * 99999 + "100,5O\n")
        antwort = self.rufe("--all", "--vary", datei, "--json-lines", self.ort / "l", "--sqlite", self.ort / "d", status=2)
        self.assertIn('row 100000 (line 100001), column 2: Koc: "5O" is not one number', antwort.stderr)
        self.assertFalse((self.ort / "l").exists() or (self.ort / "d").exists())


class Varianten(Probe):
    def test_failed_variant_is_a_line_of_its_own_and_counts_in_no_percentile(self):
        plan = self.schreibe("plan.csv", "month[1]\n3\n12\n4\n")
        wunsch = ["--simulation", UNREGELMAESSIG, "--vary", plan, "--json-lines", self.ort / "l", "--summary", self.ort / "s"]
        self.rufe(*wunsch, "--sqlite", self.ort / "d", status=1)
        zeilen = [json.loads(z) for z in (self.ort / "l").read_text(encoding="utf-8").splitlines()]
        self.assertEqual(["error" in z for z in zeilen], [False, True, False])
        self.assertEqual(list(zeilen[1])[:3], ["simulation", "variant", "error"])
        self.assertEqual(zeilen[1]["variant"], {"row": 2, "values": {"month[1]": 12}})
        with (self.ort / "s").open(encoding="utf-8", newline="") as strom:
            reihen = list(csv.DictReader(strom))
        self.assertEqual({r["n"] for r in reihen}, {"2"})
        werte = [s["studies"][0]["compounds"][0]["endpoints"][0]["Maximum_Bodentiefe"] for s in zeilen if "studies" in s]
        self.assertEqual(float(reihen[0]["mean"]), (werte[0] + werte[1]) / 2)
        with sqlite3.connect(self.ort / "d") as v:
            arten = v.execute("SELECT row, kind, text FROM message m JOIN variant v ON v.id=m.variant_id WHERE kind='error'").fetchall()
        self.assertEqual(arten, [(2, "error", zeilen[1]["error"])])

    def test_settings_count_as_one_more_file_of_the_sum(self):
        eu, monate = ("".join(f"{t}\r\n" for t in range(1, n + 1)) for n in (10, 12))
        datei = self.ort / "v.ini"
        datei.write_bytes(("Tooltips:\t0\r\nAppearance:\t0\r\nEU\r\n" + eu + "Month\r\n" + monate).encode())
        saetze = [self.projekt / "input" / f"Programcheck{e}" for e in (".che", ".app", ".sce")]
        summe = hashlib.sha256()
        for satz in [*saetze, datei]:
            inhalt = satz.read_bytes()
            summe.update(len(inhalt).to_bytes(8, "little") + inhalt)
        summe.update(b"rate=750\nKoc[1,0]=12.5\n")
        antwort = self.rufe("--simulation", "Programcheck", "--settings", datei, "--set", "rate=7,5E2", "--set", "Koc[1,0]=12.50",
                            "--json", "-")
        self.assertEqual(json.loads(antwort.stdout)["simulations"][0]["inputs_sha256"], summe.hexdigest())

    def test_rotation_divides_the_plateau_of_reports(self):
        for jahre in (1, 2):
            ordner = self.ort / f"berichte{jahre}"
            self.rufe("--simulation", "Maize, Compound G", "--study", "1", "--set", f"rotation={jahre}", "--report", ordner)
            text = next(ordner.glob("*.rtf")).read_text(encoding="ascii")
            self.assertRegex(text, rf"Reduction factor to account for crop rotation: (\\tab )?{jahre}\b")

    def test_rotation_of_the_call_goes_with_the_parts(self):
        plan = self.schreibe("plan.csv", "Koc\n50\n60\n70\n")
        wunsch = ["--simulation", "Maize, Compound G", "--vary", plan, "--set", "rotation=2"]
        self.rufe(*wunsch, "--summary", self.ort / "ganz.sum")
        for i in range(2):
            self.rufe(*wunsch, "--shard", f"{i}/2", "--json", self.ort / f"t{i}.json", "--csv", self.ort / f"t{i}.csv")
        for endung in ("json", "csv"):
            self.rufe(f"--{endung}", self.ort / f"alle.{endung}", "--set", "rotation=2", "--summary", self.ort / "alle.sum", "--merge",
                      *(self.ort / f"t{i}.{endung}" for i in range(2)), projekt=False)
            self.assertEqual(self.bytes("alle.sum"), self.bytes("ganz.sum"))

    def test_no_part_is_replaced_by_what_is_joined_of_it(self):
        for i in range(2):
            self.rufe("--all", "--shard", f"{i}/2", "--json-lines", self.ort / f"t{i}")
        vorher = self.bytes("t0")
        self.rufe("--json-lines", self.ort / "t0", "--merge", self.ort / "t0", self.ort / "t1", projekt=False, status=2)
        self.assertEqual(self.bytes("t0"), vorher)


class Fortsetzen(Probe):
    def erste_Zeilen(self, anzahl):
        zeilen = self.bytes("l").splitlines(keepends=True)[:anzahl]
        (self.ort / "l").write_bytes(b"".join(zeilen))

    def test_lines_of_another_choice_of_studies_are_refused(self):
        zeilen = ["--simulation", "Cereals, Compound B", "--simulation", "Programcheck", "--json-lines", self.ort / "l"]
        for alte, neue in (([], ["--study", "1"]), (["--study", "1"], []), (["--study", "1"], ["--study", "2"])):
            with self.subTest(alte=alte, neue=neue):
                status = 1 if "2" in neue else 0  # the second simulation has one study
                self.rufe(*zeilen, *alte)
                self.erste_Zeilen(1)
                vorher = self.bytes("l")
                antwort = self.rufe(*zeilen, *neue, "--resume", status=2)
                self.assertIn("line 1: ", antwort.stderr)
                self.assertIn("stud", antwort.stderr)
                self.assertEqual(self.bytes("l"), vorher)
                self.rufe(*zeilen, *neue, status=status)
                ganz = self.bytes("l")
                self.erste_Zeilen(1)
                self.rufe(*zeilen, *neue, "--resume", status=status)
                self.assertEqual(self.bytes("l"), ganz)

    def test_lines_with_positions_belong_to_a_call_with_a_shard(self):
        zeilen = ["--simulation", "Programcheck", "--json-lines", self.ort / "l"]
        for alte, neue in ((["--shard", "0/1"], []), ([], ["--shard", "0/1"])):
            with self.subTest(alte=alte, neue=neue):
                self.rufe(*zeilen, *alte)
                vorher = self.bytes("l")
                self.assertIn("position", self.rufe(*zeilen, *neue, "--resume", status=2).stderr)
                self.assertEqual(self.bytes("l"), vorher)


class Datenbank(Probe):
    def frage(self, sql):
        with sqlite3.connect(self.ort / "d") as verbindung:
            return verbindung.execute(sql).fetchall()

    def test_simulation_that_fails_keeps_nothing_of_an_earlier_call(self):
        wunsch = ["--simulation", "Programcheck", "--sqlite", self.ort / "d"]
        self.rufe(*wunsch)
        self.assertIsNotNone(self.frage("SELECT inputs_sha256 FROM simulation")[0][0])
        (self.projekt / "input" / "Programcheck.sce").write_bytes(b"")
        self.rufe(*wunsch, status=1)
        self.assertEqual(self.frage("SELECT description, compound_record, inputs_sha256, program FROM simulation"), [(None,) * 4])
        self.assertEqual(self.frage("SELECT count(*) FROM result"), [(0,)])
        self.assertEqual(self.frage("SELECT kind FROM message"), [("error",)])

    def test_joining_parts_that_are_no_whole_leaves_the_database_alone(self):
        for i in range(3):
            self.rufe("--all", "--shard", f"{i}/3", "--sqlite", self.ort / f"t{i}.db")
        self.rufe("--simulation", "Programcheck", "--sqlite", self.ort / "d")
        vorher = abzug(self.ort / "d")
        for ziel in ("d", "neu"):
            antwort = self.rufe("--sqlite", self.ort / ziel, "--merge", self.ort / "t0.db", self.ort / "t2.db", projekt=False, status=2)
            self.assertIn("a part is missing", antwort.stderr)
            antwort = self.rufe("--sqlite", self.ort / ziel, "--merge", self.ort / "t0.db", self.ort / "t0.db", projekt=False, status=2)
            self.assertIn("stands in another part as well", antwort.stderr)
        self.assertEqual(abzug(self.ort / "d"), vorher)
        self.assertFalse((self.ort / "neu").exists())


class Abbruch(Probe):
    def test_ctrl_c_leaves_whole_lines_and_whole_variants(self):
        wunsch = [*MIT_METABOLIT, "--sample", self.schreibe("u.csv", ZIEHUNG), "--draws"]
        ziele = ["--json-lines", self.ort / "l", "--sqlite", self.ort / "d"]
        lauf = subprocess.Popen([PROGRAMM, *wunsch, "1000000", *ziele, self.projekt], stderr=subprocess.PIPE)
        self.addCleanup(lauf.kill)
        while not (self.ort / "l").exists() or (self.ort / "l").stat().st_size < 1000000:
            self.assertIsNone(lauf.poll())
            time.sleep(0.01)
        lauf.send_signal(signal.SIGINT)
        lauf.communicate(timeout=60)
        self.assertEqual(lauf.returncode, 130)
        zeilen = self.bytes("l").count(b"\n")
        with sqlite3.connect(self.ort / "d") as verbindung:
            varianten = verbindung.execute("SELECT count(*) FROM variant").fetchone()[0]
        self.assertEqual(varianten, zeilen)
        # What is there are the bytes and rows of a call with so many draws.
        self.rufe(*wunsch, str(zeilen), "--json-lines", self.ort / "l2", "--sqlite", self.ort / "d2")
        self.assertEqual(self.bytes("l"), self.bytes("l2"))
        self.assertEqual(abzug(self.ort / "d"), abzug(self.ort / "d2"))


class Speicher(Probe):
    """The largest resident memory of calls that differ in the number of variants alone."""

    def spitze(self, anzahl, *ziele):
        datei = self.schreibe("u.csv", KOPF + "rate,uniform,100,200,,,\nKoc,lognormal,100,2,,,\n")
        return self.spitze_von("--simulation", "Programcheck", "--sample", datei, "--draws", str(anzahl), "--jobs", "2", *ziele,
                               self.projekt)

    def spitze_von(self, *argumente):
        lauf = subprocess.Popen([PROGRAMM, *argumente])
        self.addCleanup(lauf.kill)
        kilobyte = 0
        while lauf.poll() is None:
            for zeile in Path(f"/proc/{lauf.pid}/status").read_text().splitlines():
                if zeile.startswith("VmHWM:"):
                    kilobyte = int(zeile.split()[1])
            time.sleep(0.005)
        self.assertEqual(lauf.returncode, 0)
        return kilobyte

    def test_memory_does_not_grow_with_the_variants(self):
        for option in ("--csv", "--json-lines", "--sqlite"):
            with self.subTest(option=option):
                wenige, viele = (self.spitze(n, option, self.ort / f"{n}{option}") for n in (1000, 10000))
                self.assertGreater(wenige, 4000)
                self.assertLess(viele / wenige, 1.1)

    def test_summary_takes_eight_bytes_for_each_result_and_variant(self):
        self.spitze(10, "--summary", self.ort / "s")
        ergebnisse = len((self.ort / "s").read_text(encoding="utf-8").splitlines()) - 1
        wenige, viele = (self.spitze(n, "--summary", self.ort / "s") for n in (1000, 20000))
        erwartet = 8 * ergebnisse * 19000 / 1024
        self.assertGreater(viele - wenige, 0.8 * erwartet)  # else the measurement saw nothing
        self.assertLess(viele - wenige, erwartet + 0.1 * wenige)

    def test_summary_of_parts_takes_hardly_more(self):
        spitzen = []
        for anzahl in (1000, 20000):
            teil = self.ort / f"{anzahl}.csv"
            self.spitze(anzahl, "--shard", "0/1", "--csv", teil)
            spitzen.append(self.spitze_von("--csv", self.ort / "alle.csv", "--summary", self.ort / "s", "--merge", teil))
        ergebnisse = len((self.ort / "s").read_text(encoding="utf-8").splitlines()) - 1
        self.assertLess(spitzen[1] - spitzen[0], 1.2 * 8 * ergebnisse * 19000 / 1024 + 0.1 * spitzen[0])


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
