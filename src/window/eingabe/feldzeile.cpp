#include "window/eingabe/feldzeile.h"

#include "painting/qt_text.h"

namespace varnok {

using namespace Qt::StringLiterals;

void Feldzeile::zeige(bool sichtbar) const {
    Schild->setVisible(sichtbar);
    Feld->setVisible(sichtbar);
    if (Einheit) Einheit->setVisible(sichtbar);
}

Feldzeile erstelle_Feldzeile(Feldsteuerung& Felder, Raster& Gitter, int Zeile, bool rechts, const QString& Objektname,
                             Einheitsort Ort, QWidget* parent) {
    Feldzeile z;
    z.Feld = Felder.erstelle(Objektname, parent);
    const Feldbeschreibung& f = Feldtabelle()[static_cast<std::size_t>(z.Feld->Feld())];
    z.Schild = Schild(in_Qt(f.Beschriftung), z.Feld, parent);
    if (Objektname.startsWith(u"S_")) z.Schild->setObjectName(u"L_"_s + Objektname.mid(2));
    Gitter.addWidget(z.Schild, Zeile, rechts ? Raster::Schild_2 : Raster::Schild);
    Gitter.addWidget(z.Feld, Zeile, rechts ? Raster::Feld_2 : Raster::Feld);
    const QString Einheit = in_Qt(std::string(f.Bereich->Einheit));
    if (Ort == Einheitsort::dahinter && !Einheit.isEmpty()) {
        z.Einheit = Einheitsschild(Einheit, parent);
        Gitter.addWidget(z.Einheit, Zeile, rechts ? Raster::Einheit_2 : Raster::Einheit);
    }
    return z;
}

}  // namespace varnok
