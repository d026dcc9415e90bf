#!/usr/bin/env python3
"""Numbers become text, and text numbers, in src/base/zahlen.h alone.

    tools/pruefe_zahlentext.py [project folder]

Whatever else could do it follows the locale of the process or rounds in another way, so that the same
result would read differently in the window, in a report and in the batch program. The check fails for
each such call below src/, and for an entry of "ausnahmen" in tools/zahlentext.json that nothing needs
any more. An exception is {"datei": "src/...", "was": "...", "grund": "..."}; "was" is what the check
names, e.g. "QLocale".
"""

import json
import re
import sys
from pathlib import Path

from quelltext import nur_code, quelldateien, zeile_von

# (pattern, reason, folders that may all the same)
REGELN = [
    (r"\w*printf(?:_s)?(?=\s*\()|\w*scanf(?:_s)?(?=\s*\()", "follows the locale", ()),
    (r"strto(?:d|f|ld)|wcsto(?:d|f|ld)|atof|sto(?:d|f|ld)", "follows the locale", ()),
    (r"setlocale|uselocale|newlocale|localeconv|std\s*::\s*locale|imbue|QLocale|(?<=[<])c?locale(?=>)", "locale", ()),
    (r"QString\s*::\s*number|setNum|toDouble|toFloat|QTextStream", "a second way between numbers and text", ()),
    (r"std\s*::\s*format\w*|fmt\s*::\s*\w+", "a second way between numbers and text", ()),
    (r"[iow]*(?:string|span)stream|sstream|strstream|(?<=[<])iomanip(?=>)", "streams format numbers", ("batch",)),
    (r"basic_[io]\w*stream|[iow]*fstream|w?iostream|w?ostream|w?istream|std\s*::\s*w?(?:cout|cerr|clog|cin)",
     "streams format numbers", ("batch",)),
]
# What takes numbers of any kind: forbidden for floating values.
NUR_GANZE = re.compile(r"\bstd\s*::\s*to_w?string\s*(?=\()|\.\s*arg\s*(?=\()")

_ZAHL = re.compile(r"(?<![\w.])(?:\d[\d']*\.[\d']*|\.\d[\d']*|\d[\d']*(?=[eE][-+]?\d))(?:[eE][-+]?\d+)?[fFlL]?(?!\w)")
_WANDLUNG = r"static_cast\s*<\s*(?:double|float|long\s+double)\s*>|(?<![\w<])(?:double|float)\s*[({]"
_RECHNUNG = r"std\s*::\s*(?:sqrt|cbrt|floor|ceil|round|trunc|nearbyint|pow|exp2?|expm1|log\d*|log1p|fmod|hypot)\s*\("
_GLEITEND = re.compile(rf"\b(?:{_WANDLUNG}|{_RECHNUNG})")
_GANZ = re.compile(
    r"static_cast\s*<(?!\s*(?:double|float|long\s+double)\s*>)[^<>]*>\s*|(?:std\s*::\s*)?l?l(?:round|rint)\s*(?=\()"
)
_DURCHREICHEND = re.compile(r"\b(?:std\s*::\s*)?(?:max|min|abs|clamp)\s*(?=\()")
_KETTE = re.compile(r"[A-Za-z_]\w*(?:\s*(?:\.|->|::)\s*[A-Za-z_]\w*)*")
_VEREINBARUNG = re.compile(
    r"\b(?:(?P<gleit>double|float)|int|auto|unsigned|long|short|char|bool|size_t|ptrdiff_t|u?int\d+_t|string(?:_view)?|QString)\b"
    r"(?:\s*,[^<>;(){}]*)?[\s>&*]*\b(?P<Name>[A-Za-z_]\w*)"
)


def klammerinhalt(code, auf):
    """What stands between the bracket at `auf` and the one that closes it."""
    tiefe = 0
    for stelle in range(auf, len(code)):
        tiefe += {"(": 1, ")": -1}.get(code[stelle], 0)
        if tiefe == 0:
            return code[auf + 1 : stelle]
    return code[auf + 1 :]


def ohne_Klammern(text):
    """Without indices and arguments: their values are not those of the whole."""
    davor, text = None, _DURCHREICHEND.sub("", text)
    while davor != text:
        davor, text = text, re.sub(r"(?<=[\w\])])\s*(?:\[[^\[\]()]*\]|\([^\[\]()]*\))", "", text)
    return text


class Namen:
    """Which names of a file stand for floating values: the last declaration before a place counts, then
    any other one of the file, then those of all headers."""

    def __init__(self, code, koepfe):
        self.hier = [(t.start(), t["Name"], bool(t["gleit"])) for t in _VEREINBARUNG.finditer(code)]
        self.koepfe = koepfe

    def gleitend(self, name, stelle):
        davor = [gleit for ort, wer, gleit in self.hier if wer == name and ort < stelle]
        danach = [gleit for ort, wer, gleit in self.hier if wer == name and ort >= stelle]
        return davor[-1] if davor else danach[0] if danach else name in self.koepfe


def gleitend(argument, stelle, namen):
    """What makes an expression a floating value, None if nothing does."""
    argument = argument.strip()
    ganz = _GANZ.match(argument)
    if ganz and ganz.end() + len(klammerinhalt(argument, ganz.end())) + 2 == len(argument):
        return None
    if treffer := _GLEITEND.search(argument) or _ZAHL.search(argument):
        return treffer.group()
    for kette in _KETTE.finditer(ohne_Klammern(argument)):
        letzter = re.findall(r"\w+", kette.group())[-1]
        if namen.gleitend(letzter, stelle):
            return letzter
    return None


def verstoesse(code, ordner, koepfe):
    """(position, what, reason) of each call that the rules forbid."""
    for muster, grund, erlaubt in REGELN:
        if ordner not in erlaubt:
            for treffer in re.finditer(rf"(?<!\w)(?:{muster})(?!\w)", code):
                yield treffer.start(), re.sub(r"\s", "", treffer.group()), grund
    namen = Namen(code, koepfe)
    for treffer in NUR_GANZE.finditer(code):
        if wert := gleitend(klammerinhalt(code, treffer.end()), treffer.start(), namen):
            yield treffer.start(), re.sub(r"[\s.]", "", treffer.group()), f"of the floating value {wert}"


def pruefe(wurzel):
    """All objections against the tree, as lines of text."""
    ausnahmen = {(a["datei"], a["was"]) for a in json.loads((wurzel / "tools/zahlentext.json").read_text("utf-8"))["ausnahmen"]}
    unbenutzt = set(ausnahmen)
    codes = {datei: nur_code((wurzel / "src" / datei).read_text(encoding="utf-8")) for datei in quelldateien(wurzel)}
    koepfe = {
        t["Name"] for datei, code in codes.items() if datei.suffix == ".h" for t in _VEREINBARUNG.finditer(code) if t["gleit"]
    }
    befunde = []
    for datei, code in codes.items():
        for stelle, was, grund in sorted(verstoesse(code, datei.parts[0], koepfe)):
            if (f"src/{datei}", was) in ausnahmen:
                unbenutzt.discard((f"src/{datei}", was))
            else:
                befunde.append(f"src/{datei}:{zeile_von(code, stelle)}: {was}: {grund}; use base/zahlen.h")
    return befunde + [f"tools/zahlentext.json: exception no longer needed: {was} in {d}" for d, was in sorted(unbenutzt)]


def main():
    wurzel = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    befunde = pruefe(wurzel)
    print("\n".join(befunde) if befunde else f"{len(quelldateien(wurzel))} files leave numbers to base/zahlen.h")
    return 1 if befunde else 0


if __name__ == "__main__":
    sys.exit(main())
