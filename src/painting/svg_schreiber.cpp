#include "painting/svg_schreiber.h"

#include <QFontMetricsF>
#include <QStringList>
#include <QXmlStreamWriter>
#include <algorithm>

#include "base/zahlen.h"
#include "painting/farben.h"
#include "painting/linienmaler.h"
#include "painting/qt_text.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr double mm_pro_Einheit = 25.4 / 96;
// The program's font, then such as are as wide.
constexpr const char16_t* Familien = u"'DejaVu Sans', 'Bitstream Vera Sans', Verdana, 'Liberation Sans', Arial, sans-serif";

QString Zahl(double x) { return in_Qt(allgemeine_Zahl(gerundet(x, 2))); }

QString fuer_XML(const QString& Text) {
    QString Rest;
    for (const QChar c : Text) {
        const bool verboten = (c < u' ' && c != u'\t') || c == QChar(0xFFFE) || c == QChar(0xFFFF);
        if (!verboten) Rest += c;
    }
    return Rest;
}

class Schreiber {
public:
    Schreiber(QByteArray& Ziel, const Zeichenliste& z, const QSizeF& Groesse) : xml_(&Ziel), z_(z), Flaeche_(QPointF(), Groesse) {
        xml_.setAutoFormatting(true);
        xml_.setAutoFormattingIndent(1);
    }

    void schreibe(const QString& Titel) {
        xml_.writeStartDocument();
        xml_.writeStartElement(u"svg"_s);
        xml_.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_s);
        merkmal(u"version", u"1.1"_s);
        merkmal(u"width", Zahl(Flaeche_.width() * mm_pro_Einheit) + u"mm"_s);
        merkmal(u"height", Zahl(Flaeche_.height() * mm_pro_Einheit) + u"mm"_s);
        merkmal(u"viewBox", u"0 0 "_s + Zahl(Flaeche_.width()) + u' ' + Zahl(Flaeche_.height()));
        xml_.writeTextElement(u"title"_s, fuer_XML(Titel));
        xml_.writeTextElement(u"desc"_s, u"VARNOK"_s);
        schreibe_Rechteck(Flaeche_, u"#ffffff"_s);
        schreibe_Striche();
        schreibe_Texte();
        xml_.writeEndElement();
        xml_.writeEndDocument();
    }

private:
    void merkmal(const char16_t* Name, const QString& Wert) { xml_.writeAttribute(QString::fromUtf16(Name), Wert); }

    void schreibe_Rechteck(const QRectF& r, const QString& Farbe) {
        xml_.writeEmptyElement(u"rect"_s);
        merkmal(u"x", Zahl(r.x()));
        merkmal(u"y", Zahl(r.y()));
        merkmal(u"width", Zahl(r.width()));
        merkmal(u"height", Zahl(r.height()));
        merkmal(u"fill", Farbe);
    }

    QString Ort(Punkt p) const {
        const QPointF q = auf_Flaeche(Flaeche_, z_.System, p);
        return Zahl(q.x()) + u' ' + Zahl(q.y());
    }

    QString Weg(const std::vector<Punkt>& Punkte) const {
        QString d = u'M' + Ort(Punkte.front());
        for (std::size_t i = 1; i < Punkte.size(); ++i) d += u'L' + Ort(Punkte[i]);
        return d;
    }

    void schreibe_Weg(const QString& d, int Farbe, int Breite, int Muster) {
        xml_.writeEmptyElement(u"path"_s);
        merkmal(u"d", d);
        merkmal(u"stroke", Palettenfarbe(Farbe).name());
        merkmal(u"stroke-width", in_Qt(Breite));
        if (Muster == 0) return;
        QStringList Striche;
        for (const double Laenge : Strichmuster(Muster)) Striche << Zahl(Laenge * Breite);
        merkmal(u"stroke-dasharray", Striche.join(u','));
    }

    // Axes and ticks of one colour and width, which follow each other, are one path.
    void schreibe_Linien(std::span<const Linie> Linien) {
        QString gesammelt;
        Linienzug davor;
        const auto schreibe_Gesammeltes = [&] {
            if (!gesammelt.isEmpty()) schreibe_Weg(gesammelt, davor.Farbe, davor.Breite, davor.Muster);
            gesammelt.clear();
        };
        for (Linienzug& Zug : verbinde_Linien(Linien)) {
            const bool dazu = Zug.Farbe == davor.Farbe && Zug.Breite == davor.Breite && Zug.Muster == davor.Muster;
            if (!dazu || Zug.Punkte.size() > 2) schreibe_Gesammeltes();
            gesammelt += Weg(Zug.Punkte);
            davor = std::move(Zug);
            if (davor.Punkte.size() > 2) schreibe_Gesammeltes();
        }
        schreibe_Gesammeltes();
    }

    // A picture ends at its edges, in a program that shows what lies beyond them too.
    void beginne_Striche() {
        xml_.writeStartElement(u"clipPath"_s);
        merkmal(u"id", u"surface"_s);
        schreibe_Rechteck(Flaeche_, u"none"_s);
        xml_.writeEndElement();
        xml_.writeStartElement(u"g"_s);
        merkmal(u"clip-path", u"url(#surface)"_s);
        merkmal(u"fill", u"none"_s);
        merkmal(u"stroke-linejoin", u"round"_s);
    }

    void schreibe_Striche() {
        beginne_Striche();
        const std::span<const Linie> Linien(z_.Linien);
        std::size_t geschrieben = 0;
        for (const Kasten& k : z_.Kaesten) {
            const std::size_t darunter = k.verdeckt == 0 ? Linien.size() : std::min(k.verdeckt, Linien.size());
            if (darunter > geschrieben) schreibe_Linien(Linien.subspan(geschrieben, darunter - geschrieben));
            geschrieben = std::max(geschrieben, darunter);
            const QRectF r(auf_Flaeche(Flaeche_, z_.System, k.links_oben), auf_Flaeche(Flaeche_, z_.System, k.rechts_unten));
            schreibe_Rechteck(r, k.verdeckt > 0 ? u"#ffffff"_s : u"none"_s);
            merkmal(u"stroke", Palettenfarbe(k.Farbe).name());
            merkmal(u"stroke-width", in_Qt(k.Breite));
        }
        schreibe_Linien(Linien.subspan(geschrieben));
        xml_.writeEndElement();
    }

    void schreibe_Texte() {
        xml_.writeStartElement(u"g"_s);
        merkmal(u"font-family", QString::fromUtf16(Familien));
        for (const Schriftzug& s : z_.Texte) schreibe_Text(s);
        xml_.writeEndElement();
    }

    void schreibe_Text(const Schriftzug& s) {
        const Schriftbild Bild = setze_Schrift(Flaeche_, z_.System, s, Schriftgroesse_Bericht);
        const bool mittig = s.Halt == Anker::mittig;
        const QRectF& r = Bild.Platz;
        xml_.writeStartElement(u"text"_s);
        merkmal(u"x", Zahl(mittig ? r.center().x() : s.Halt == Anker::rechts ? r.right() : r.left()));
        merkmal(u"y", Zahl(r.top() + QFontMetricsF(Bild.Schrift).ascent()));
        merkmal(u"font-size", Zahl(Bild.Schrift.pixelSize()));
        merkmal(u"fill", Palettenfarbe(s.Farbe).name());
        if (s.Halt != Anker::links) merkmal(u"text-anchor", mittig ? u"middle"_s : u"end"_s);
        if (s.fett) merkmal(u"font-weight", u"bold"_s);
        if (s.kursiv) merkmal(u"font-style", u"italic"_s);
        xml_.writeCharacters(fuer_XML(Bild.Text));
        xml_.writeEndElement();
    }

    QXmlStreamWriter xml_;
    const Zeichenliste& z_;
    QRectF Flaeche_;
};

}  // namespace

QByteArray Bild_als_SVG(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse) {
    QByteArray Inhalt;
    Schreiber(Inhalt, z, Groesse).schreibe(Titel);
    return Inhalt;
}

}  // namespace varnok
