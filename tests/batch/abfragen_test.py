"""The database read by others: the queries of the documentation with Python's library and the sqlite3 shell, and the words of the
outputs against their table.

    abfragen_test.py VARNOK-BATCH DATA DOCUMENT
"""

import csv
import json
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAMM, DATEN, DOKUMENT = (Path(a) for a in sys.argv[1:4])
TEXT = DOKUMENT.read_text(encoding="utf-8")


class Datenbank(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.ordner = tempfile.TemporaryDirectory()
        ort = Path(cls.ordner.name)
        projekt = ort / "projekt"
        shutil.copytree(DATEN, projekt)
        (ort / "plan.csv").write_text("rate\n500\n750\n1000\n", encoding="ascii")
        (projekt / "input" / "broken.vnk").write_bytes(b"")
        cls.datei = ort / "r.db"
        cls.json = ort / "r.json"
        cls.csv = ort / "r.csv"
        cls.tage = ort / "tage"
        alle = [PROGRAMM, "--all", "--sqlite", cls.datei, "--json", cls.json, "--csv", cls.csv, "--series", cls.tage, projekt]
        cls.status = subprocess.run(alle, capture_output=True).returncode
        plan = [PROGRAMM, "--simulation", "Cereals, Compound B", "--vary", ort / "plan.csv", "--sqlite", cls.datei, projekt]
        subprocess.run(plan, check=True, capture_output=True)

    @classmethod
    def tearDownClass(cls):
        cls.ordner.cleanup()

    def frage(self, sql):
        with sqlite3.connect(self.datei) as verbindung:
            zeiger = verbindung.execute(sql)
            return [s[0] for s in zeiger.description], zeiger.fetchall()

    def test_results_are_those_of_the_json(self):
        self.assertEqual(self.status, 1)  # one simulation is broken on purpose
        erwartet = []
        for s in json.loads(self.json.read_text(encoding="utf-8"))["simulations"]:
            for st in s["studies"]:
                for c in st["compounds"]:
                    for e in c["endpoints"]:
                        erwartet.append((s["simulation"], st["study"], c["compound"], e["endpoint"], e["Maximum_Bodentiefe"],
                                         e["Plateauwert"], e["TWA"][3]["maximum"], e["Jahresmaximum"][9]))
        _, zeilen = self.frage("""SELECT s.name, r.study, r.compound, r.endpoint, r.maximum, r.plateau,
            (SELECT maximum FROM twa WHERE result_id = r.id ORDER BY rowid LIMIT 1 OFFSET 3),
            (SELECT value FROM year_maximum WHERE result_id = r.id AND year = 10)
            FROM result r JOIN simulation s ON s.id = r.simulation_id WHERE r.variant_id IS NULL""")
        self.assertGreater(len(erwartet), 20)
        self.assertEqual(sorted(zeilen), sorted(erwartet))

    def test_queries_of_the_documentation_answer(self):
        abfragen = re.findall(r"```sql\n(.*?)```", TEXT, re.S)
        self.assertEqual(len(abfragen), 5)
        for sql in abfragen:
            with self.subTest(sql=sql):
                namen, zeilen = self.frage(sql)
                self.assertTrue(zeilen)
                shell = shutil.which("sqlite3")
                self.assertIsNotNone(shell, "the sqlite3 shell is missing")
                antwort = subprocess.run([shell, "-csv", "-header", self.datei, sql], check=True, capture_output=True, text=True)
                tabelle = list(csv.reader(antwort.stdout.splitlines()))
                self.assertEqual(tabelle[0], namen)
                self.assertEqual(len(tabelle) - 1, len(zeilen))

    def test_query_about_a_varied_value_has_a_row_for_each_variant(self):
        sql = next(a for a in re.findall(r"```sql\n(.*?)```", TEXT, re.S) if "variant_value" in a)
        _, zeilen = self.frage(sql)
        self.assertEqual([z[1] for z in zeilen], [500, 750, 1000])
        self.assertLess(zeilen[0][2], zeilen[2][2])

    def test_every_german_word_of_the_outputs_is_explained(self):
        worte = set()

        def sammle(wert):
            if isinstance(wert, dict):
                for schluessel, inhalt in wert.items():
                    worte.add(schluessel)
                    sammle(inhalt)
            elif isinstance(wert, list):
                for inhalt in wert:
                    sammle(inhalt)

        sammle(json.loads(self.json.read_text(encoding="utf-8")))
        with self.csv.open(encoding="utf-8", newline="") as strom:
            worte |= set(next(csv.reader(strom)))
        serie = next(self.tage.glob("*.tab"))
        worte |= set(serie.read_text(encoding="utf-8").splitlines()[0].split("\t"))
        deutsche = {re.sub(r"_\d+(_\w+)?$", "", w) for w in worte if w[0].isupper()}
        erklaerte = {re.sub("_c_e$", "", w) for w in re.findall(r"^\| `(\w+)` \|", TEXT, re.M)}
        self.assertGreater(len(deutsche), 10)
        self.assertEqual(deutsche - erklaerte, set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
