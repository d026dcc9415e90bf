import unittest

from umgebung import Baumtest

import pruefe_zahlentext


class Zahlentext(Baumtest):
    def befunde(self, code, datei="src/run/a.cpp", ausnahmen=()):
        self.schreibe(datei, code)
        self.schreibe_json("tools/zahlentext.json", {"ausnahmen": list(ausnahmen)})
        return pruefe_zahlentext.pruefe(self.baum)

    def verboten(self, code, was, datei="src/run/a.cpp"):
        befunde = self.befunde(code, datei)
        self.assertTrue(any(f": {was}: " in befund for befund in befunde), f"{code!r}: {befunde}")

    def erlaubt(self, code, datei="src/run/a.cpp"):
        self.assertEqual(self.befunde(code, datei), [], code)

    def test_position_is_told(self):
        self.assertEqual(
            self.befunde("int a;\nauto b = std::stod(t);\n"),
            ["src/run/a.cpp:2: stod: follows the locale; use base/zahlen.h"],
        )

    def test_calls_of_the_c_library(self):
        for aufruf in ("printf", "fprintf", "std::snprintf", "vsprintf", "sscanf"):
            self.verboten(f'{aufruf}("%f", x);', aufruf.removeprefix("std::"))
        for aufruf in ("strtod", "strtof", "atof", "std::stod", "std::stof", "std::stold"):
            self.verboten(f"auto x = {aufruf}(t);", aufruf.removeprefix("std::"))

    def test_locale_is_not_touched(self):
        self.verboten('setlocale(LC_ALL, "");', "setlocale")
        self.verboten('std::locale l("");', "std::locale")
        self.verboten("#include <clocale>\n", "clocale")
        self.verboten("QLocale l;", "QLocale", "src/window/kern/a.cpp")

    def test_conversions_of_the_toolkit(self):
        for code, was in (
            ("auto t = QString::number(n);", "QString::number"),
            ("auto x = t.toDouble();", "toDouble"),
            ('auto t = QString::asprintf("%f", x);', "asprintf"),
            ("QTextStream s(&f);", "QTextStream"),
        ):
            self.verboten(code, was, "src/records/a.cpp")

    def test_streams_are_for_the_batch_program_alone(self):
        for code, was in (
            ("std::ostringstream s;", "ostringstream"),
            ("std::stringstream s;", "stringstream"),
            ("#include <sstream>\n", "sstream"),
            ("#include <iomanip>\n", "iomanip"),
            ("void zeige(std::ostream& aus);", "ostream"),
            ("std::cout << x;", "std::cout"),
            ("std::ofstream f(n);", "ofstream"),
        ):
            self.verboten(code, was, "src/exposure/a.cpp")
            self.schreibe("src/exposure/a.cpp", "")
            self.erlaubt(code, "src/batch/a.cpp")

    def test_batch_program_has_no_other_freedom(self):
        self.verboten("auto x = std::stod(t);", "stod", "src/batch/a.cpp")

    def test_to_string_of_a_whole_number_is_allowed(self):
        for code in (
            "int n = 1; auto t = std::to_string(n);",
            "double d; auto t = std::to_string(static_cast<int>(d));",
            "double d; auto t = std::to_string(std::lround(d * 10));",
            "std::vector<double> Werte; auto t = std::to_string(Werte.size());",
            "double d; auto t = std::to_string(finde(d));",
            "auto t = std::to_string(Tabelle[1] + 1);",
            "void f(double n); void g(int n) { std::to_string(n); }",
        ):
            self.erlaubt(code)

    def test_to_string_of_a_floating_value_fails(self):
        for code in (
            "double d = 1; auto t = std::to_string(d);",
            "auto t = std::to_string(1.5);",
            "auto t = std::to_string(n * 1e3);",
            "auto t = std::to_string(static_cast<double>(n));",
            "void f(const float& wert) { std::to_string(wert); }",
            "std::vector<double> Werte; auto t = std::to_string(Werte[0]);",
            "struct S { std::array<double, 3> k; }; auto t = std::to_string(s.k[i]);",
            "double Wert(T t); auto t = std::to_string(Wert(t));",
            "double d; auto t = std::to_string(std::max(d, e));",
            "auto t = std::to_string(std::sqrt(n));",
            "void g(int n); void f(double n) { std::to_string(n); }",
            "double d; auto t = std::to_string(static_cast<int>(e) + d);",
        ):
            self.verboten(code, "std::to_string")

    def test_member_declared_in_a_header_is_known(self):
        self.schreibe("src/run/parameter.h", "struct Parameter { double Bodentiefe = 0; int Anzahl = 0; };\n")
        self.verboten("auto t = std::to_string(p.Bodentiefe);", "std::to_string")
        self.erlaubt("auto t = std::to_string(p.Anzahl);")

    def test_own_declaration_counts_before_that_of_a_header(self):
        self.schreibe("src/run/parameter.h", "void f(double Tag);\n")
        self.erlaubt("void g(int Tag) { std::to_string(Tag); }")

    def test_arg_of_a_floating_value_fails(self):
        self.verboten("double d; t = t.arg(d);", "arg", "src/window/kern/a.cpp")
        self.erlaubt("int n; t = t.arg(n);", "src/window/kern/a.cpp")

    def test_comments_texts_and_longer_names_do_not_count(self):
        self.erlaubt(
            "// printf(x)\n/* std::stod */ auto a = \"setlocale strtod\"; char b = '\"'; int stod_Zahl; // '\n"
            'auto c = R"(QLocale)"; int meine_printf_Zeile = 1\'000;\n'
        )

    def test_call_behind_a_quote_character_counts(self):
        self.verboten("char b = '\"'; auto x = std::stod(t); char c = '\"';", "stod")

    def test_named_exception_passes_and_fails_when_nobody_needs_it(self):
        ausnahme = {"datei": "src/run/a.cpp", "was": "QLocale", "grund": "asks for the separator"}
        self.assertEqual(self.befunde("QLocale l;", ausnahmen=[ausnahme]), [])
        self.assertEqual(
            self.befunde("int l;", ausnahmen=[ausnahme]),
            ["tools/zahlentext.json: exception no longer needed: QLocale in src/run/a.cpp"],
        )


if __name__ == "__main__":
    unittest.main()
