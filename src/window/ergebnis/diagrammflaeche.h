#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <optional>

#include "diagrams/diagramm.h"
#include "diagrams/diagrammsaetze.h"

class QLabel;

namespace varnok {

class Ergebnisrahmen;
class Legendenrahmen;

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

    void zeige(const Diagramm& d);
    void leere();
    const std::optional<Diagramm>& Inhalt() const { return Inhalt_; }
    // Legend and results come back to where they stood at first.
    void hole_Rahmen_heim();
    void verbirg_Ablesung();
    // Places all that stands on the surface.
    void ordne();

Q_SIGNALS:
    // A left press, a right press, each without a key.
    void weiterzuschalten();
    void zu_skalieren();

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;

private:
    enum Schildname { Titel, Kommentar, x_Achse, y_Achse };

    QLabel* erstelle_Schild(const QString& Name, const QString& Endung);
    // Gives the lower edge of the comment, in pixels.
    int ordne_Schilder();
    void ordne_Ablesung();
    void setze_Schild(Schildname s, const Beschriftung& b, double links, double oben);
    void zeige_Ablesung(const QPointF& Ort);
    void male_Bild();
    // Size in units of 1/96 inch, of which the letters of the desktop make larger ones.
    QSizeF Groesse() const { return QSizeF(size()) / Massstab_; }

    int Nummer_;
    std::optional<Diagramm> Inhalt_;
    Zeichenliste Liste_;  // fitted to the size
    Koordinaten Achsen_;  // the rectangle between the axes
    double Massstab_ = 1;
    QPixmap Bild_;
    std::array<QLabel*, 4> Schilder_{};
    QLabel* Ablesungsschild_;
    std::optional<QPointF> Ablesepunkt_;
    int Ablesefarbe_ = 0;
    Legendenrahmen* Legende_;
    Ergebnisrahmen* Tafel_ = nullptr;
};

}  // namespace varnok
