#pragma once

// The small widgets that the frames are made of.

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class QButtonGroup;

namespace varnok {

// So many digits of the widget's font: the unit of all widths.
int Ziffern(const QWidget& w, double Anzahl);
// Height that fields, lists and buttons share.
int Zeilenhoehe(const QWidget& w);

// A text as a tip that shows it as it is: what looks like HTML is none.
QString als_Tip(const QString& Text);

// A button as wide as its text that Space presses and Enter does not.
class Schaltflaeche : public QPushButton {
    Q_OBJECT
public:
    Schaltflaeche(const QString& Name, const QString& Aufschrift, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* e) override;
};

// A list of which the user's choice alone counts (`activated`); closed, it is turned by no wheel.
class Auswahlliste : public QComboBox {
    Q_OBJECT
public:
    // As wide as `Zeichen` digits at least.
    Auswahlliste(const QString& Name, int Zeichen, QWidget* parent);
    QSize sizeHint() const override { return {QComboBox::sizeHint().width(), Zeilenhoehe(*this)}; }
    QSize minimumSizeHint() const override { return {QComboBox::minimumSizeHint().width(), Zeilenhoehe(*this)}; }

    // Shows entries and selection; tells nobody.
    void zeige(const std::vector<std::string>& Eintraege, int Position);
    void zeige(std::span<const std::string_view> Eintraege, int Position);
    void zeige(const QStringList& Eintraege, int Position);
    // A background of its own, an invalid colour for that of its surroundings.
    void faerbe(const QColor& Farbe);

protected:
    // A text that finds no room ends in dots.
    void paintEvent(QPaintEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
};

// Tells the main window what did not enter, when the key is done with.
class Zeichenereignis : public QEvent {
public:
    static const Type Art;
    explicit Zeichenereignis(QString Meldung) : QEvent(Art), Meldung_(std::move(Meldung)) {}
    const QString& Meldung() const { return Meldung_; }

private:
    QString Meldung_;
};

// The quiet mark of a value outside its range, in the corner of a field or a cell, and its words.
void male_Zweifel(QPainter& p, const QRect& Ort);
QString Zweifelswort();

// A line to type in. What no record can hold does not enter, typed or pasted; the main window is told of it by a
// `Zeichenereignis`.
class Textfeld : public QLineEdit {
    Q_OBJECT
public:
    Textfeld(const QString& Name, QWidget* parent);
    // Shows a text that differs, from its first character.
    void zeige(const QString& Text);
    // What was typed is accepted: the field takes back nothing of it any more.
    void vergiss_Getipptes();
    // A quiet mark in its corner: what it shows is not what it accepts.
    void markiere(bool ausserhalb);
    QSize sizeHint() const override { return {QLineEdit::sizeHint().width(), Zeilenhoehe(*this)}; }

protected:
    // Undo and redo are the field's own while there is something typed, else commands of the window.
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    class Zeichenfilter;

    bool markiert_ = false;
    bool zeigt_ = false;  // the program fills it
};

// A line of text that is cut with dots where it finds no room; the whole text is its tip then.
class Kurztext : public QLabel {
    Q_OBJECT
public:
    Kurztext(const QString& Name, QWidget* parent);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* e) override;
};

// A tab strip that asks before the user changes the page, and that no wheel turns.
class Reiterleiste : public QTabBar {
    Q_OBJECT
public:
    using QTabBar::QTabBar;
    std::function<bool()> darf_wechseln;

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
};

class Reiter : public QTabWidget {
    Q_OBJECT
public:
    Reiter(const QString& Name, const QString& Bedeutung, QWidget* parent);
    Reiterleiste* Leiste() const { return Leiste_; }
    // Turns to a page; tells nobody.
    void zeige_Seite(int i);

protected:
    // Ctrl+Tab asks as the mouse does.
    void keyPressEvent(QKeyEvent* e) override;

private:
    Reiterleiste* Leiste_;
};

// Switches an option on; Tab comes to this one of its group.
void zeige_Option(QButtonGroup& Optionen, int o);

// A caption for a place where no field follows it.
QString ohne_Doppelpunkt(const QString& Aufschrift);

// The grid that all frames share: label, field, unit, and the same once more, growth behind it.
class Raster : public QGridLayout {
    Q_OBJECT
public:
    enum Spalte { Schild = 0, Feld = 1, Einheit = 2, Schild_2 = 3, Feld_2 = 4, Einheit_2 = 5, Rest = 6 };
    // `Einzug`: so far to the right stands the parent of where the grids of the other frames stand.
    explicit Raster(QWidget* parent, int Einzug = 0);
    // Widths of the columns in the font of the parent.
    void richte_aus();

private:
    int Einzug_;
};

// A label in front of `Ziel`, right-aligned; its text becomes the accessible name of `Ziel`.
QLabel* Schild(const QString& Text, QWidget* Ziel, QWidget* parent);
// The unit behind a field.
QLabel* Einheitsschild(const QString& Text, QWidget* parent);
// Letters of another size and weight, in a colour of their own, wrapped where they find no room.
QLabel* Titelzeile(const QString& Text, double Groesse, QFont::Weight Gewicht, const QColor& Farbe, QWidget* parent);
// A heading.
QLabel* Ueberschrift(const QString& Text, QWidget* parent);

}  // namespace varnok
