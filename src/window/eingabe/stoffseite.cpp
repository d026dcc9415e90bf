#include "window/eingabe/stoffseite.h"

#include <QFontMetrics>
#include <algorithm>

#include "painting/qt_text.h"
#include "window/saetze/namensfeld.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<const char16_t*, Stoffe> Namensfelder = {u"Name_Wirkstoff_", u"Name_Met_1_", u"Name_Met_2_"};

// Caption of a compound in a scheme: a single metabolite needs no number.
QString Stoffschild(Stoffschema Schema, int i_substanz) {
    if (Schema == ein_Metabolit && i_substanz == 1) return u"Metabolite:"_s;
    return QStringView(Substanznamen[static_cast<std::size_t>(i_substanz)]).toString();
}

// Width of a head: that of the fields below, or what it needs to stand in two lines, broken at a blank.
int Kopfbreite(const QLabel& Kopf) {
    const QString Text = Kopf.text();
    const QFontMetrics Masse = Kopf.fontMetrics();
    int Breite = Masse.horizontalAdvance(Text);
    for (qsizetype i = Text.indexOf(u' '); i >= 0; i = Text.indexOf(u' ', i + 1)) {
        Breite = std::min(Breite, std::max(Masse.horizontalAdvance(Text.left(i)), Masse.horizontalAdvance(Text.mid(i + 1))));
    }
    return std::max(Breite + 2, Zahlenfeld::Breite(Kopf));
}

}  // namespace

Stoffseite::Stoffseite(const QString& Name, int Exemplar, Sitzung& Programm, QWidget* parent)
    : Rahmen(Name, Rahmenart::schlicht, Programm, parent), Gitter_(new QGridLayout(this)) {
    Gitter_->setContentsMargins(0, 0, 0, 0);
    Gitter_->setHorizontalSpacing(6);
    Gitter_->setVerticalSpacing(6);
    Gitter_->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(u"Metabolite:"_s));
    Gitter_->setColumnStretch(1, 1);
    Gitter_->setRowStretch(Stoffe + 1, 1);
    setze_Kopf(1, u"Name:"_s);
    for (int c = 0; c < Stoffe; ++c) {
        Stoffzeile& z = Zeilen_[static_cast<std::size_t>(c)];
        z.Name = new Namensfeld(QString::fromUtf16(Namensfelder[static_cast<std::size_t>(c)]) + in_Qt(Exemplar), this);
        z.Schild = new QLabel(this);
        z.Schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Gitter_->addWidget(z.Schild, c + 1, 0);
        Gitter_->addWidget(z.Name, c + 1, 1);
        connect(z.Name, &QLineEdit::textEdited, this, [this, c](const QString& Text) {
            tippe([&] { Programm_.fuehre_aus<&Listenwahl::aendere_Namen>(c, aus_Qt(Text)); });
        });
        connect(z.Name, &Namensfeld::fertig, this, [this] { befiehl<&Listenwahl::verlasse_Namen>(); });
    }
}

QLabel* Stoffseite::setze_Kopf(int Spalte, const QString& Text) {
    auto* Kopf = new QLabel(Text, this);
    Kopf->setTextFormat(Qt::PlainText);
    Kopf->setAlignment((Spalte == 1 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignBottom);
    if (Spalte > 1) {
        Kopf->setWordWrap(true);
        Kopf->setFixedWidth(Kopfbreite(*Kopf));
    }
    Gitter_->addWidget(Kopf, 0, Spalte, Spalte > 1 ? Qt::AlignRight | Qt::AlignBottom : Qt::Alignment());
    return Kopf;
}

void Stoffseite::setze_Feld(Feldsteuerung& Steuerung, int i_substanz, int Spalte, const QString& Objektname) {
    if (Objektname.isEmpty()) return;
    Zahlenfeld* Feld = Steuerung.erstelle(Objektname, this);
    Zeilen_[static_cast<std::size_t>(i_substanz)].Felder.push_back(Feld);
    Gitter_->addWidget(Feld, i_substanz + 1, Spalte, Qt::AlignRight);
}

void Stoffseite::ordne_Tabfolge() {
    QWidget* voriges = nullptr;
    for (const Stoffzeile& z : Zeilen_) {
        if (voriges) setTabOrder(voriges, z.Name);
        voriges = z.Name;
        for (QWidget* Feld : z.Felder) {
            setTabOrder(voriges, Feld);
            voriges = Feld;
        }
    }
}

void Stoffseite::zeige_Namen() {
    for (int c = 0; c < Stoffe; ++c) Zeilen_[static_cast<std::size_t>(c)].Name->zeige(in_Qt(Stoffname(Vorgabe(), c)));
}

// Fields of one caption stand in each row.
void Stoffseite::benenne(const Stoffzeile& z) {
    const QString Stoff = ohne_Doppelpunkt(z.Schild->text()) + u", "_s;
    z.Name->setAccessibleName(Stoff + u"Name"_s);
    for (Zahlenfeld* Feld : z.Felder) Feld->setAccessibleName(Stoff + ohne_Doppelpunkt(Feld->Beschriftung()));
}

void Stoffseite::zeige() {
    zeige_Namen();
    const Stoffschema m = Vorgabe().Berechnungsmodus;
    for (int c = 0; c < Stoffe; ++c) {
        Stoffzeile& z = Zeilen_[static_cast<std::size_t>(c)];
        const bool sichtbar = c < Anzahl_Stoffe(m);
        z.Schild->setText(Stoffschild(m, c));
        benenne(z);
        z.Schild->setVisible(sichtbar);
        z.Name->setVisible(sichtbar);
        for (QWidget* Feld : z.Felder) Feld->setVisible(sichtbar);
    }
}

Sorptionsdaten::Sorptionsdaten(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent)
    : Stoffseite(u"Sorptionsdaten"_s, 1, Programm, parent) {
    setze_Kopf(erste_Feldspalte, u"Koc (L/kgl):"_s);
    for (int c = 0; c < Stoffe; ++c) setze_Feld(Steuerung, c, erste_Feldspalte, u"S_KOC_"_s + in_Qt(c));
    ordne_Tabfolge();
}

Metabolismusschema::Metabolismusschema(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent)
    : Stoffseite(u"Metabolismusschema"_s, 0, Programm, parent) {
    static constexpr std::array<const char16_t*, Stoffe> Massen = {u"Molmasse_Wirkstoff", u"Molmasse_Met_1", u"Molmasse_Met_2"};
    static constexpr std::array<const char16_t*, Stoffe> Anteile = {u"", u"Bildungsanteil_Met_1", u"Bildungsanteil_Met_2"};
    setze_Kopf(erste_Feldspalte, u"Mol. Mass (g/mol):"_s);
    Kopf_Bildung_ = setze_Kopf(erste_Feldspalte + 1, u"Formation fraction (%):"_s);
    for (std::size_t c = 0; c < Stoffe; ++c) {
        setze_Feld(Steuerung, static_cast<int>(c), erste_Feldspalte, QString::fromUtf16(Massen[c]));
        setze_Feld(Steuerung, static_cast<int>(c), erste_Feldspalte + 1, QString::fromUtf16(Anteile[c]));
    }
    ordne_Tabfolge();
}

void Metabolismusschema::zeige() {
    Stoffseite::zeige();
    Kopf_Bildung_->setVisible(Anzahl_Stoffe(Vorgabe().Berechnungsmodus) > 1);
}

}  // namespace varnok
