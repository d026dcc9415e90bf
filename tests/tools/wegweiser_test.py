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


# What stands in front of a name that is defined, back to the last ";", "{" or "}": types and names alone, one at least.
VOR_DEFINITION = re.compile(
    r"\s*(?:#[^\n]*\n\s*|\w+\s*:(?!:)\s*)*(?:template\s*<[^;{}]*>\s*)?"
    r"(?!(?:return|throw|else|new|case)\b)\w[\w:<>,&*\s.-]*[\s&*:>]"
)
# Between the parameters of a function and its body: qualifiers, the type behind an arrow, the values of members.
VOR_RUMPF = re.compile(r"\s*(?:(?:const|noexcept|override|final)\s*)*(?:->[^;{]*|:[^;]*)?\{")
HINTER_ANDEREM = re.compile(r"\s*(?:final\s*)?(?:\[[^\]]*\]\s*|:[^:;{][^;{]*)*[={]")


def hinter_Klammer(code, stelle):
    """Behind the bracket that closes the one at this place."""
    tiefe = 0
    for i in range(stelle, len(code)):
        tiefe += {"(": 1, ")": -1}.get(code[i], 0)
        if tiefe == 0:
            return i + 1
    return len(code)


def definiert(code, name):
    """Whether the code defines a function, type, namespace, constant or test of that name: a call is no answer."""
    code = nur_code(code)
    if re.search(rf"^TEST(?:_F|_P)?\(\w+,\s*{re.escape(name)}\)\s*\{{", code, re.MULTILINE):
        return True
    for treffer in re.finditer(rf"(?<!\w){re.escape(name)}(?!\w)", code):
        anfang = max(code.rfind(zeichen, 0, treffer.start()) for zeichen in ";{}") + 1
        if not VOR_DEFINITION.fullmatch(code[anfang : treffer.start()]):
            continue
        klammer = re.compile(r"\s*\(").match(code, treffer.end())
        if klammer:
            if VOR_RUMPF.match(code, hinter_Klammer(code, klammer.end() - 1)):
                return True
        elif HINTER_ANDEREM.match(code, treffer.end()):
            return True
    return False


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
        elif not definiert(datei.read_text(encoding="utf-8"), name):
            fehler.append(f"{frage}: {dateien[0]} does not define {name}")
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

    def test_every_way_leads_to_a_file_that_defines_the_name(self):
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
            erwartet = [f"a: src/run/a.cpp does not define {name}"]
            self.assertEqual(erwartet, self.irrwege(f"a | `src/run/a.cpp` | `{name}`"))

    def test_a_call_a_declaration_and_a_mere_use_do_not_answer(self):
        self.schreibe(
            "src/run/b.cpp",
            "int gerufen(int);\nint ruft() {\n    if (gefragt(1)) {\n        return gerufen(2);\n    }\n"
            "    Typ t{gerufen(3)};\n    gerufen(4);\n    auto x = gerufen(5);\n    return Liste{x}.size();\n}\nint Typ::eins() { return 1; }\n",
        )
        for name in ("gerufen", "gefragt", "Typ", "Liste"):
            erwartet = [f"a: src/run/b.cpp does not define {name}"]
            self.assertEqual(erwartet, self.irrwege(f"a | `src/run/b.cpp` | `{name}`"))

    def test_functions_types_namespaces_and_constants_answer(self):
        self.schreibe(
            "src/run/b.h",
            "#pragma once\nnamespace varnok::Worte {\nclass Art final : public Grund {\npublic:\n"
            "    Art() : a_{1}, b_(2) {}\n"
            "    bool gilt(int (*f)(int)) const override { return f(1); }\n};\nenum class Wahl : int { ja };\n"
            "constexpr int Tabelle[] = {1};\ntemplate <class T>\nstd::vector<T> alle(const T& t) {\n}\nusing Kurz = int;\n",
        )
        namen = ("varnok::Worte", "Art", "gilt", "Wahl", "Tabelle", "alle", "Kurz")
        self.assertEqual([], self.irrwege(*(f"{name} | `src/run/b.h` | `{name}`" for name in namen)))

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
