import re
import unittest

from umgebung import WURZEL

from quelltext import nur_code, quelldateien

SPALTEN = ["word", "English term", "unit", "remark"]

_ZEILE = re.compile(r"^\|(.*)\|\s*$")
_BEZEICHNER = re.compile(r"\b[A-Za-z_]\w*")


def zeilen(text):
    """Cells of every table row, heads included, dividers not."""
    for zeile in text.splitlines():
        if treffer := _ZEILE.match(zeile):
            zellen = [zelle.strip() for zelle in treffer.group(1).split("|")]
            if not all(re.fullmatch(":?-+:?", zelle) for zelle in zellen):
                yield zellen


def woerter(text):
    return [wort for zellen in zeilen(text) for wort in re.findall(r"`([^`]+)`", zellen[0])]


def bezeichner(wurzel):
    return {
        name
        for datei in quelldateien(wurzel)
        for name in _BEZEICHNER.findall(nur_code((wurzel / "src" / datei).read_text(encoding="utf-8")))
    }


def fehlende(gesuchte, namen):
    """The words that no identifier holds. A word begins at an underscore or in front; one with a small first letter ends
    there too, one with a capital may go on as a compound does: Boden in Bodentiefe."""
    alle = "\n".join(sorted(namen))

    def fehlt(wort):
        ende = r"(?:_|$)" if wort[0].islower() else ""
        return not re.search(rf"(?:^|_){re.escape(wort)}{ende}", alle, re.MULTILINE)

    return [wort for wort in gesuchte if fehlt(wort)]


class Glossar(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = (WURZEL / "docs" / "glossary.md").read_text(encoding="utf-8")

    def test_every_word_is_an_identifier_of_the_sources(self):
        self.assertEqual([], fehlende(woerter(self.text), bezeichner(WURZEL)))

    def test_the_tables_have_their_columns_and_every_row_a_word_and_a_term(self):
        koepfe = [zellen for zellen in zeilen(self.text) if zellen[0] == "word"]
        self.assertEqual(len(re.findall("^## ", self.text, re.MULTILINE)), len(koepfe))
        for zellen in zeilen(self.text):
            if zellen[0] == "word":
                self.assertEqual(SPALTEN, zellen)
                continue
            self.assertEqual(len(SPALTEN), len(zellen), zellen)
            self.assertRegex(zellen[0], r"^`\w+`(, `\w+`)*$")
            self.assertTrue(zellen[1], zellen)

    def test_no_word_stands_twice(self):
        alle = woerter(self.text)
        self.assertEqual([], sorted({wort for wort in alle if alle.count(wort) > 1}))


class Vergleich(unittest.TestCase):
    def test_a_word_may_begin_a_compound_or_a_part(self):
        self.assertEqual([], fehlende(["Boden", "Tiefe", "lies"], {"Bodentiefe", "Wert_Tiefenwahl", "lies_Satz"}))

    def test_a_word_within_another_does_not_count(self):
        self.assertEqual(["Satz", "lies", "tiefe"], fehlende(["Satz", "lies", "tiefe"], {"Zusatz", "liest", "Bodentiefe"}))

    def test_a_word_in_a_comment_or_a_text_does_not_count(self):
        code = 'int Jahr; // Monat\nconst char* t = "Woche";\n'
        self.assertEqual(["Monat", "Woche"], fehlende(["Jahr", "Monat", "Woche"], set(_BEZEICHNER.findall(nur_code(code)))))


if __name__ == "__main__":
    unittest.main()
