import re
import unittest

from umgebung import WURZEL, Baumtest

from glossar_test import zeilen
from quelltext import ENDUNGEN, nur_code

DOKUMENTE = ["README.md", "docs/architecture.md", "docs/input.md"]

# Where a path in a document may start: in words about a folder it is left out.
ANFAENGE = ["", "src", "src/session"]
# What only a build makes, or a project folder holds.
ERST_SPAETER = ("build/", "input/", "output/", "backup/")


def wegweiser(text):
    """File and names of every row of the tables that have a column for each."""
    spalten = None
    for zellen in zeilen(text):
        genannt = [kopf for kopf in ("function or type", "test") if kopf in zellen]
        if genannt:
            spalten = zellen.index("file"), zellen.index(genannt[0]), len(zellen)
        elif spalten and len(zellen) == spalten[2]:
            yield zellen[0], in_Anfuehrung(zellen[spalten[0]]), in_Anfuehrung(zellen[spalten[1]])
        else:
            spalten = None


def in_Anfuehrung(text):
    return re.findall(r"`([^`]+)`", text)


def fragen(text):
    """The rows of the section that a newcomer looks things up in."""
    abschnitt = re.search(r"^## Where is what$(.*?)^## ", text, re.MULTILINE | re.DOTALL).group(1)
    return list(wegweiser(abschnitt))


def hat_Namen(code, name):
    return re.search(rf"(?<!\w){re.escape(name)}(?!\w)", nur_code(code)) is not None


def irrwege(wurzel, text):
    """What is wrong with the rows, one text for each fault."""
    fehler = []
    for frage, dateien, namen in wegweiser(text):
        if len(dateien) != 1 or len(namen) != 1:
            fehler.append(f"{frage}: not one file and one name")
            continue
        datei, name = wurzel / dateien[0], namen[0]
        if datei.suffix not in ENDUNGEN or not datei.is_file():
            fehler.append(f"{frage}: there is no source {dateien[0]}")
        elif not hat_Namen(datei.read_text(encoding="utf-8"), name):
            fehler.append(f"{frage}: {dateien[0]} has no {name}")
    return fehler


def fehlende_Pfade(wurzel, text):
    # A block of a shell is no place for marks.
    text = re.sub(r"^    .*$", "", text, flags=re.MULTILINE)
    pfade = [wort for wort in in_Anfuehrung(text) if re.fullmatch(r"\w[\w./*-]*/[\w.*-]*", wort)]
    pfade += [ziel for ziel in re.findall(r"\]\(([^):]+)\)", text) if "/" in ziel]
    return [
        pfad
        for pfad in pfade
        if not pfad.startswith(ERST_SPAETER) and not any(list((wurzel / anfang).glob(pfad)) for anfang in ANFAENGE)
    ]


class Dokumente(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = (WURZEL / "docs/architecture.md").read_text(encoding="utf-8")

    def test_every_way_leads_to_a_file_that_has_the_name(self):
        for name in DOKUMENTE:
            self.assertEqual([], irrwege(WURZEL, (WURZEL / name).read_text(encoding="utf-8")), name)

    def test_the_newcomers_table_answers_enough_and_no_question_twice(self):
        alle = [frage for frage, _, _ in fragen(self.text)]
        self.assertGreaterEqual(len(alle), 20)
        self.assertEqual([], sorted({frage for frage in alle if alle.count(frage) > 1}))

    def test_both_ways_through_the_program_are_tables_of_hops(self):
        hops = [int(frage) for frage, _, _ in wegweiser(self.text) if frage.isdigit()]
        self.assertEqual(2, hops.count(1))
        zweiter = hops.index(1, 1)
        for weg in (hops[:zweiter], hops[zweiter:]):
            self.assertEqual(list(range(1, len(weg) + 1)), weg)

    def test_every_path_exists(self):
        for name in DOKUMENTE:
            self.assertEqual([], fehlende_Pfade(WURZEL, (WURZEL / name).read_text(encoding="utf-8")), name)


class Vergleich(Baumtest):
    KOPF = "| question | file | function or type |\n|---|---|---|\n"

    def setUp(self):
        super().setUp()
        self.schreibe("src/run/a.cpp", 'int Lauf::rechne() { return 1; }  // Ende\nconst char* t = "Wort";\n')

    def irrwege(self, *reihen):
        return irrwege(self.baum, self.KOPF + "".join(f"| {reihe} |\n" for reihe in reihen))

    def test_a_name_may_be_qualified_or_not(self):
        self.assertEqual([], self.irrwege("a | `src/run/a.cpp` | `rechne`", "b | `src/run/a.cpp` | `Lauf::rechne`"))

    def test_a_name_in_a_comment_in_a_text_or_within_another_does_not_count(self):
        for name in ("Ende", "Wort", "rech", "Satz::rechne"):
            self.assertEqual([f"a: src/run/a.cpp has no {name}"], self.irrwege(f"a | `src/run/a.cpp` | `{name}`"))

    def test_a_missing_file_and_a_folder_are_told(self):
        self.assertEqual(
            ["a: there is no source src/run/b.cpp", "b: there is no source src/run"],
            self.irrwege("a | `src/run/b.cpp` | `rechne`", "b | `src/run` | `rechne`"),
        )

    def test_two_files_for_a_question_are_told(self):
        self.assertEqual(
            ["a: not one file and one name"], self.irrwege("a | `src/run/a.cpp`, `src/run/a.cpp` | `rechne`")
        )

    def test_other_tables_are_left_alone(self):
        self.assertEqual([], irrwege(self.baum, "| folder | holds |\n|---|---|\n| `nowhere` | `nothing` |\n"))

    def test_a_path_that_is_not_there_is_told(self):
        text = "`src/run/a.cpp` and `run/` and `src/run/a*`, [a](src/run/a.cpp)\n    `block/of` a shell\n`build/x`\n"
        self.assertEqual([], fehlende_Pfade(self.baum, text))
        self.assertEqual(["src/screens", "docs/x.md"], fehlende_Pfade(self.baum, "`src/screens` [x](docs/x.md)"))


if __name__ == "__main__":
    unittest.main()
