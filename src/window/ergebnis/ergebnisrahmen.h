#pragma once

#include "exposure/ergebnistabelle.h"
#include "window/ergebnis/flaechenrahmen.h"

class QLabel;
class QTableWidget;

namespace varnok {

// The grid of results upon a diagram, under its title. Cells can be selected by click and copied.
class Ergebnisrahmen : public Flaechenrahmen {
    Q_OBJECT
public:
    // `Endung`: what the object names end in, e.g. "_4" or "_Zusammenfassung_2".
    Ergebnisrahmen(const QString& Endung, const QString& Titel, QWidget* parent);

    void zeige(const Tabellentext& Tabelle);
    void setze_Titel(const QString& Titel);
    // In the present font, on a surface of that size whose time axis lies at that height.
    void ordne(const QSize& Flaeche, int Achsenhoehe);

protected:
    void zeige_Griff(bool gehalten) override;
    void klicke(const QMouseEvent& e) override;

private:
    // Sets the heads in columns of that width so that no two of studies look alike; gives how many lines they take.
    int ordne_Koepfe(int Spaltenbreite, int hoechstens);
    // Lines of letters that stand between title and time axis.
    int Zeilen_bis(int Platz) const;
    bool letzte_Zeile_leer() const;
    // Heights of the rows, of which the first has so many lines, for that room between title and time axis.
    void ordne_Zeilen(int Platz, int Kopfzeilen);

    QLabel* Titel_;
    QTableWidget* Tafel_;
};

}  // namespace varnok
