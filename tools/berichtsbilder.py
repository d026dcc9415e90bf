"""Puts the pages of each report (PPM) side by side into one PNG: berichtsbilder.py <folder with the pages> <folder for the pictures>"""

import pathlib
import struct
import sys
import zlib

ABSTAND = 6
STUFEN = 4  # of each primary colour: enough for text, and small files


def lies(datei):
    """Width, height and the rows of a page, a byte for each point: its place in the palette."""
    kopf, masse, _, punkte = datei.read_bytes().split(b"\n", 3)
    assert kopf == b"P6", datei
    breite, hoehe = map(int, masse.split())
    summe = 0
    for kanal, gewicht in enumerate((STUFEN * STUFEN, STUFEN, 1)):
        tafel = bytes(gewicht * (w * STUFEN // 256) for w in range(256))
        summe += int.from_bytes(punkte[kanal::3].translate(tafel), "big")
    flach = summe.to_bytes(breite * hoehe, "big")
    return hoehe, breite, [flach[z * breite:(z + 1) * breite] for z in range(hoehe)]


def palette():
    werte = [i * 255 // (STUFEN - 1) for i in range(STUFEN)]
    return bytes(w for r in werte for g in werte for b in werte for w in (r, g, b))


def png(zeilen):
    def abschnitt(art, inhalt):
        return struct.pack(">I", len(inhalt)) + art + inhalt + struct.pack(">I", zlib.crc32(art + inhalt))

    kopf = struct.pack(">IIBBBBB", len(zeilen[0]), len(zeilen), 8, 3, 0, 0, 0)
    daten = zlib.compress(b"".join(b"\0" + z for z in zeilen), 9)
    return (b"\x89PNG\r\n\x1a\n" + abschnitt(b"IHDR", kopf) + abschnitt(b"PLTE", palette()) + abschnitt(b"IDAT", daten)
            + abschnitt(b"IEND", b""))


def reihe(seiten):
    grau = bytes([2 * (STUFEN * STUFEN + STUFEN + 1)])
    rand = grau * ABSTAND
    zeilen = [rand + rand.join(teile) + rand for teile in zip(*(z for _, _, z in seiten))]
    leer = [grau * len(zeilen[0])] * ABSTAND
    return leer + zeilen + leer


def main(quelle, ziel):
    for bericht in sorted(quelle.glob("*.rtf")):
        for weg, muster in (("rich_text", "{}-*.ppm"), ("printed", "{}.print-*.ppm")):
            seiten = [lies(s) for s in sorted(quelle.glob(muster.format(bericht.stem)))]
            (ziel / f"report_{bericht.stem}_{weg}.png").write_bytes(png(reihe(seiten)))


main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
