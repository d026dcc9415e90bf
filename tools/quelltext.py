"""C++ sources as the checks read them."""

import re

_TEILE = re.compile(
    r"""
      (?P<Kommentar> //(?:\\\n|[^\n])* | /\*.*?(?:\*/|\Z) )
    | (?P<Rohtext>   (?:u8|[uUL])?R"(?P<Grenze>[^()\\\s]{0,16})\(.*?\)(?P=Grenze)" )
    | (?P<Text>      "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])+' )
    | (?P<Rest>      [A-Za-z_]\w* | \d(?:'?[\w.])* )   # a ' inside a number separates its digits
    """,
    re.VERBOSE | re.DOTALL,
)

ENDUNGEN = {".h", ".cpp"}


def quelldateien(wurzel):
    """All sources below src/, as paths relative to it, in a fixed order."""
    src = wurzel / "src"
    return sorted(pfad.relative_to(src) for pfad in src.rglob("*") if pfad.suffix in ENDUNGEN)


def nur_code(text):
    """Comments and what stands between quotes become blanks; length and lines stay the same."""

    def ersetze(treffer):
        ganz = treffer.group()
        if treffer.lastgroup == "Rest":
            return ganz
        blank = re.sub(r"[^\n]", " ", ganz)
        if treffer.lastgroup == "Kommentar":
            return blank
        vorne = re.search(r"[\"']", ganz).start() + 1
        return ganz[:vorne] + blank[vorne:-1] + ganz[-1]

    return _TEILE.sub(ersetze, text)


def zeile_von(text, stelle):
    return text.count("\n", 0, stelle) + 1
