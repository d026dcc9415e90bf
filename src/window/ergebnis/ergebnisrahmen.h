#pragma once

#include "exposure/ergebnistabelle.h"
#include "window/ergebnis/flaechenrahmen.h"

class QLabel;
class QTableWidget;

namespace varnok {

// How a grid is set, as `waehle_Groesse` counts: in the letters of the desktop, in smaller ones, or its most important rows
// alone.
enum class Tafelform { gewohnt, klein, gefaltet };

// The grid of results upon a diagram, under its title. Cells can be selected by click and copied. Where it
// is folded a click or the focus shows all rows as long as it has the focus.
class Ergebnisrahmen : public Flaechenrahmen {
    Q_OBJECT
public:
    // `Endung`: what the object names end in, e.g. "_4" or "_Zusammenfassung_2".
    Ergebnisrahmen(const QString& Endung, const QString& Titel, QWidget* parent);

    // `wichtig`: the row that is seen with the first two where others are not.
    void zeige(const Tabellentext& Tabelle, int wichtig);
    void setze_Titel(const QString& Titel);
    // In the present font, on a surface of that size whose time axis lies at that height.
    void ordne(const QSize& Flaeche, int Achsenhoehe, Tafelform s);

Q_SIGNALS:
    // It wants to be set anew.
    void umgeklappt();

protected:
    bool eventFilter(QObject* Kind, QEvent* e) override;
    void zeige_Griff(bool gehalten) override;
    void klicke(const QMouseEvent& e) override;

private:
    // Sets the heads in columns of that width so that no two of studies look alike; gives how many lines they take.
    int ordne_Koepfe(int Spaltenbreite, int hoechstens);
    // Lines of letters that stand between title and time axis.
    int Zeilen_bis(int Platz) const;
    bool letzte_Zeile_leer() const;
    int Platz_fuer_Spalten(int Flaechenbreite) const;
    int Spaltenbreite(int Flaechenbreite) const;
    int Namensbreite() const;    // of the names of the rows
    int Kopfwortbreite() const;  // of the longest word that the head of a study cannot break
    // Hides rows, and gives how many are seen.
    int falte();
    bool zugeklappt() const { return Form_ == Tafelform::gefaltet && !im_Fokus_; }
    // Heights of the rows, of which the first has so many lines, for that room between title and time axis.
    void ordne_Zeilen(int Platz, int Kopfzeilen);

    QLabel* Titel_;
    QTableWidget* Tafel_;
    QLabel* Rest_;  // what is to be said of rows that are not seen
    Tafelform Form_ = Tafelform::gewohnt;
    int wichtig_ = 0;
    bool im_Fokus_ = false;
};

}  // namespace varnok
