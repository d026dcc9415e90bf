#pragma once

#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

#include "diagrams/diagramm.h"
#include "diagrams/diagrammsaetze.h"
#include "diagrams/lesegang.h"
#include "diagrams/rahmenlage.h"
#include "painting/titelform.h"

class QLabel;

namespace varnok {

class Ergebnisrahmen;
class Flaechenrahmen;
class Legendenrahmen;
enum class Tafelform;

// The surface of one diagram, light on any desktop: the drawing, and standing on it labels, legend and the grid of
// results. The painted drawing is kept until another one or another size comes.
class Diagrammflaeche : public QWidget {
    Q_OBJECT
public:
    // `Nummer`: index among the diagrams, or among the summary diagrams.
    Diagrammflaeche(bool Zusammenfassung, int Nummer, const QString& Ergebnistitel, QWidget* parent);

    Ergebnisrahmen* Tafel() const { return Tafel_; }  // null on a diagram of several compounds
    Legendenrahmen* Legende() const { return Legende_; }
    int Nummer() const { return Nummer_; }

    // `Anblick`: another number where the view or a record is another one than at the drawing before. Only then, or when the size
    // changes, frames leave their places.
    void zeige(const Diagramm& d, int Anblick);
    void leere();
    const std::optional<Diagramm>& Inhalt() const { return Inhalt_; }
    // Legend and results come back to where they stood at first.
    void hole_Rahmen_heim();
    // That of the mouse; one by keys comes back.
    void verbirg_Ablesung();
    // What frames must not cover, as it is shown now.
    Rahmenfeld Feld() const;
    // Places all that stands on the surface.
    void ordne();

Q_SIGNALS:
    // A left press, a right press, each without a key.
    void weiterzuschalten();
    void zu_skalieren();
    // Days were marked by a drag with a key held; the wheel was turned over a day.
    void Zeitraum_gezogen(double von, double bis);
    void gedreht(double Faktor, double Tag);

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    enum Schildname { Titel, Kommentar, x_Achse, y_Achse };

    QLabel* erstelle_Schild(const QString& Name, const QString& Endung);
    // Breaks title and comment into lines; gives the units that they take.
    double bestimme_Kopf();
    void ordne_Schilder();
    void ordne_Ablesung();
    void setze_Schild(Schildname s, const Beschriftung& b, const Titelform& Form, const QPointF& Ort, bool mittig);
    void ordne_Rahmen();
    std::vector<Flaechenrahmen*> sichtbare_Rahmen() const;
    std::vector<Rahmenwunsch> Wuensche() const;
    // Nothing has happened that frames leave their places for.
    bool steht_fest() const { return gestellt_fuer_ == std::pair(Anblick_, size()); }
    void ordne_Tafel(Tafelform s);
    void waehle_Tafelform();
    void lies_ab_bei(const QPointF& Ort);
    void zeige_Ablesung(const std::optional<Ablesung>& a);
    // The place that keys have led to, also for those who hear it.
    void zeige_Lesestelle();
    void male_Bild();
    // The place of the drawing under a pixel.
    Punkt logisch_bei(const QPointF& Ort) const;
    double Tag_bei(double x) const { return std::clamp(logisch_bei({x, 0}).x, Achsen_.links, Achsen_.rechts); }
    // Size in units of 1/96 inch, of which the letters of the desktop make larger ones.
    QSizeF Groesse() const { return QSizeF(size()) / Massstab_; }

    int Nummer_;
    std::optional<Diagramm> Inhalt_;
    Zeichenliste Liste_;  // fitted to the size
    Koordinaten Achsen_;  // the rectangle between the axes
    Titelform Titelform_;
    Titelform Kommentarform_;
    double Kopf_ = 0;                                        // units that both take
    std::tuple<std::string, std::string, double> Kopf_aus_;  // the texts and the width that they were set for
    double Massstab_ = 1;
    QPixmap Bild_;
    std::array<QLabel*, 4> Schilder_{};
    QLabel* Ablesungsschild_;
    std::optional<QPointF> Ablesepunkt_;
    int Ablesefarbe_ = 0;
    std::optional<Lesestelle> Lesestelle_;                 // while keys read off
    std::optional<std::pair<double, double>> Markierung_;  // pixels from left to right, while days are marked
    Legendenrahmen* Legende_;
    Ergebnisrahmen* Tafel_ = nullptr;
    Tafelform Tafelform_ = {};
    // Where frames stand that were not dragged, and what they were placed for; nothing before that has been seen.
    std::array<std::optional<Rahmenplatz>, 2> Plaetze_;
    int Anblick_ = 0;
    std::pair<int, QSize> gestellt_fuer_;
    bool gesehen_ = false;
};

}  // namespace varnok
