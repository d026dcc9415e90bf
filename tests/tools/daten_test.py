import subprocess
import sys
import unittest

from umgebung import WURZEL, Baumtest

import erzeuge_daten as daten
import erzeuge_klima as klima

ORDNER = WURZEL / "data/input"


def werte(*tabellen):
    return {wert for tabelle in tabellen for wert in tabelle}


class Daten(Baumtest):
    def test_shipped_records_agree_with_the_tables(self):
        self.assertEqual(daten.abweichungen(ORDNER), [])

    def test_shipped_climate_agrees_with_its_tool(self):
        self.assertEqual((ORDNER / f"{klima.NAME}.cli").read_bytes(), klima.klimadatei())

    def test_check_tells_missing_strange_and_changed_files(self):
        for name, inhalt in daten.alle_dateien().items():
            (self.baum / name).write_bytes(inhalt)
        (self.baum / "Programcheck.che").unlink()
        (self.baum / "Programcheck.app").write_bytes(b"")
        (self.baum / "Other.sce").write_bytes(b"")
        self.assertEqual(
            daten.abweichungen(self.baum),
            ["missing: Programcheck.che", "not in the tables: Other.sce", "differs: Programcheck.app"],
        )
        ausgang = subprocess.run(
            [sys.executable, "-B", WURZEL / "tools/erzeuge_daten.py", "--pruefe", self.baum], capture_output=True, check=False
        )
        self.assertEqual(ausgang.returncode, 1)

    def test_number_form(self):
        self.assertEqual(
            [daten.zahl(z) for z in (0, 1.5, 100, 0.0001, 0.00001, 1e15, 0.1 + 0.2, 2 / 3)],
            ["0", "1.5", "100", "0.0001", "1E-05", "1E+15", "0.3", "0.666666666666667"],
        )

    def test_table_of_a_regular_pattern_holds_its_dates(self):
        satz = daten.Applikation(daten.REGELMAESSIG, daten.JAEHRLICH, Monat=2, Tag=20, Rate=5, Anzahl=3, Intervall=10)
        self.assertEqual([zeile[:2] for zeile in daten.ereignisse(satz)], [(20, 2), (2, 3), (12, 3)])

    def test_records_named_by_simulations_exist(self):
        for name, (_, wirkstoff, applikation, szenario) in daten.SIMULATIONEN.items():
            self.assertIn(wirkstoff, daten.WIRKSTOFFE, name)
            self.assertIn(applikation, daten.APPLIKATIONEN, name)
            self.assertIn(szenario, daten.SZENARIEN, name)

    def test_climate_named_by_a_scenario_exists(self):
        for satz in daten.SZENARIEN.values():
            if satz.Klima:
                self.assertTrue((ORDNER / f"{satz.Klima}.cli").is_file(), satz.Klima)

    def test_simulations_cover_what_the_program_can(self):
        saetze = list(daten.SIMULATIONEN.values())
        stoffsaetze = [daten.WIRKSTOFFE[s[1]] for s in saetze]
        studien = [(s.Schema, studie) for s in stoffsaetze for studie in s.Studien]
        applikationen = [daten.APPLIKATIONEN[s[2]] for s in saetze]
        self.assertEqual({s.Schema for s in stoffsaetze}, {0, 1, 2, 3})
        self.assertEqual({st.Wirkstoff.Kinetik for _, st in studien}, {daten.SFO, daten.DFOP, daten.FOMC, daten.HS})
        metabolite = werte(*((st.Met_1.Kinetik, st.Met_2.Kinetik)[: min(schema, 2)] for schema, st in studien))
        self.assertEqual(metabolite, {daten.SFO, daten.DFOP})
        self.assertEqual({s.Einheit for s in stoffsaetze}, {daten.MG, daten.MIKROGRAMM})
        self.assertEqual({s.Rueckstaende for s in stoffsaetze}, {0, 1, 2})
        self.assertEqual({s.TWA for s in stoffsaetze}, {daten.MONATE, daten.EU})
        self.assertEqual({len(s.Studien) for s in stoffsaetze}, {1, 2, 3, 6})
        self.assertEqual({a.Art for a in applikationen}, {0, 1, 2})
        self.assertEqual({a.PEC for a in applikationen}, {0, 1, 2})
        self.assertEqual({bool(daten.SZENARIEN[s[3]].Klima) for s in saetze}, {False, True})

    def test_parameters_fit_the_kinetics_that_needs_them(self):
        for name, satz in daten.WIRKSTOFFE.items():
            for studie in satz.Studien:
                for stoff in (studie.Wirkstoff, studie.Met_1, studie.Met_2):
                    noetig = {daten.SFO: stoff.DT50, daten.DFOP: stoff.DFOP, daten.FOMC: stoff.FOMC, daten.HS: stoff.HS}
                    self.assertIsNotNone(noetig[stoff.Kinetik], f"{name}, {studie.Name}")

    def test_regular_intervals_fit_into_the_year(self):
        for name, satz in daten.APPLIKATIONEN.items():
            self.assertLessEqual(satz.Intervall, round(365 / satz.Anzahl), name)
            if satz.Tabelle:
                self.assertEqual(len(satz.Tabelle), satz.Anzahl, name)
                self.assertEqual(satz.Tabelle, sorted(satz.Tabelle, key=lambda z: (z[1], z[0])), name)

    def test_climate_file_has_a_year_of_days_in_its_columns(self):
        zeilen = klima.klimadatei().decode("cp1252").split("\r\n")
        self.assertEqual((len(zeilen), zeilen[-1]), (367, ""))
        regen, verdunstung, temperatur = (
            [float(zeile[von:bis]) for zeile in zeilen[1:-1]] for von, bis in ((7, 17), (17, 27), (37, 47))
        )
        self.assertAlmostEqual(sum(regen), klima.REGENSUMME, delta=5)
        self.assertAlmostEqual(sum(verdunstung), klima.VERDUNSTUNGSSUMME, delta=5)
        self.assertAlmostEqual(sum(temperatur) / 365, klima.MITTELTEMPERATUR, delta=0.1)
        self.assertLess(sum(temperatur[:31]), sum(temperatur[181:212]))
        self.assertGreaterEqual(min(regen + verdunstung), 0)


if __name__ == "__main__":
    unittest.main()
