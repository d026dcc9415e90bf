import json
import unittest

from umgebung import WURZEL, Baumtest

import pruefe_includes


class Includes(Baumtest):
    def setUp(self):
        super().setUp()
        self.tabelle = {
            "schichten": {
                "base": {"darf": [], "fremd": []},
                "run": {"darf": ["base"], "fremd": []},
                "records": {"darf": ["base", "run"], "fremd": ["Qt Core"]},
                "session/kern": {"darf": ["base", "records"], "fremd": []},
            },
            "ueberall": ["C++"],
            "fremd": {"C++": ["vector", "string"], "Qt Core": ["QString", "QtCore/*"], "Qt Gui": ["QFont*"]},
            "ausnahmen": [],
        }
        self.schreibe("src/base/zahlen.h", "#include <string>\n")
        self.schreibe("src/run/lauf.h", '#include <vector>\n#include "base/zahlen.h"\n')

    def befunde(self):
        self.schreibe_json("tools/schichten.json", self.tabelle)
        return pruefe_includes.pruefe(self.baum)

    def nimm_aus(self, datei, include):
        self.tabelle["ausnahmen"].append({"datei": datei, "include": include, "grund": "for a while"})

    def test_tree_that_keeps_to_the_table_passes(self):
        self.assertEqual(self.befunde(), [])

    def test_include_against_the_table_fails_with_its_line(self):
        self.schreibe("src/base/text.h", '#pragma once\n\n#include "run/lauf.h"\n')
        self.assertEqual(self.befunde(), ['src/base/text.h:3: base may not include run ("run/lauf.h")'])

    def test_two_files_of_one_name_fail(self):
        self.schreibe("src/run/zahlen.h", "")
        self.assertEqual(self.befunde(), ["zahlen.h: two files of one name: src/base/zahlen.h, src/run/zahlen.h"])

    def test_every_program_may_have_its_main(self):
        self.schreibe("src/run/main.cpp", "")
        self.schreibe("src/base/main.cpp", "")
        self.assertEqual(self.befunde(), [])

    def test_spaces_in_the_directive_hide_nothing(self):
        self.schreibe("src/base/text.h", '  #  include   "run/lauf.h"\n')
        self.assertEqual(len(self.befunde()), 1)

    def test_own_folder_and_its_subfolder_are_allowed(self):
        self.schreibe("src/run/teil/schritt.cpp", '#include "run/lauf.h"\n')
        self.assertEqual(self.befunde(), [])

    def test_nested_folder_has_its_own_row(self):
        self.schreibe("src/session/kern/sitzung.h", '#include "run/lauf.h"\n')
        self.assertEqual(
            self.befunde(), ['src/session/kern/sitzung.h:1: session/kern may not include run ("run/lauf.h")']
        )

    def test_folder_without_a_row_fails(self):
        self.schreibe("src/neu/x.h", "")
        self.assertEqual(self.befunde(), ["src/neu/x.h: its folder is missing in tools/schichten.json"])

    def test_include_relative_to_the_file_fails(self):
        self.schreibe("src/run/b.h", '#include "lauf.h"\n')
        self.assertIn('"lauf.h" is no file below src/', self.befunde()[0])

    def test_generated_moc_file_is_left_alone(self):
        self.schreibe("src/records/b.cpp", '#include "b.moc"\n')
        self.assertEqual(self.befunde(), [])

    def test_library_is_allowed_by_folder(self):
        self.schreibe("src/records/satz.cpp", "#include <QString>\n#include <QtCore/QFile>\n")
        self.schreibe("src/run/b.cpp", "#include <QString>\n")
        self.assertEqual(self.befunde(), ["src/run/b.cpp:1: run may not use Qt Core (<QString>)"])

    def test_library_found_by_pattern_is_forbidden_too(self):
        self.schreibe("src/records/satz.cpp", "#include <QFontMetrics>\n")
        self.assertEqual(self.befunde(), ["src/records/satz.cpp:1: records may not use Qt Gui (<QFontMetrics>)"])

    def test_unknown_header_fails(self):
        self.schreibe("src/run/b.cpp", "#include <boost/any.hpp>\n")
        self.assertEqual(self.befunde(), ["src/run/b.cpp:1: <boost/any.hpp> is of no library in tools/schichten.json"])

    def test_include_in_comment_or_text_does_not_count(self):
        self.schreibe(
            "src/base/text.h",
            '// #include "run/lauf.h"\n/*\n#include <QString>\n*/\nauto a = R"(\n#include <QString>\n)";\nint b = 1\'000;\n',
        )
        self.assertEqual(self.befunde(), [])

    def test_include_behind_a_digit_separator_counts(self):
        self.schreibe("src/base/text.h", "int b = 1'000;\n#include <QString>\nint c = 1'000;\n")
        self.assertEqual(self.befunde(), ["src/base/text.h:2: base may not use Qt Core (<QString>)"])

    def test_named_exception_passes(self):
        self.schreibe("src/base/text.h", '#include "run/lauf.h"\n')
        self.nimm_aus("src/base/text.h", "run/lauf.h")
        self.assertEqual(self.befunde(), [])

    def test_exception_nobody_needs_fails(self):
        self.nimm_aus("src/run/lauf.h", "base/zahlen.h")
        self.nimm_aus("src/run/gone.h", "records/satz.h")
        self.assertEqual(
            self.befunde(),
            [
                "tools/schichten.json: exception no longer needed: src/run/gone.h includes records/satz.h",
                "tools/schichten.json: exception no longer needed: src/run/lauf.h includes base/zahlen.h",
            ],
        )

    def test_headers_in_a_circle_fail(self):
        self.schreibe("src/run/a.h", '#include "run/b.h"\n')
        self.schreibe("src/run/b.h", '#include "run/c.h"\n')
        self.schreibe("src/run/c.h", '#include "run/a.h"\n')
        self.assertEqual(
            self.befunde(), ["src/run/a.h: headers in a circle: run/a.h -> run/b.h -> run/c.h -> run/a.h"]
        )

    def test_two_ways_to_one_header_are_no_circle(self):
        self.schreibe("src/run/a.h", '#include "run/b.h"\n#include "run/lauf.h"\n')
        self.schreibe("src/run/b.h", '#include "run/lauf.h"\n')
        self.assertEqual(self.befunde(), [])

    def test_table_that_runs_in_a_circle_fails(self):
        self.tabelle["schichten"]["base"]["darf"] = ["records"]
        self.assertTrue(any("folders in a circle: base -> records -> base" in b for b in self.befunde()))

    def test_every_name_in_the_shipped_table_is_known(self):
        tabelle = json.loads((WURZEL / "tools/schichten.json").read_text(encoding="utf-8"))
        for ordner, reihe in tabelle["schichten"].items():
            self.assertLessEqual(set(reihe["darf"]), tabelle["schichten"].keys(), ordner)
            self.assertLessEqual(set(reihe["fremd"]), tabelle["fremd"].keys(), ordner)


if __name__ == "__main__":
    unittest.main()
