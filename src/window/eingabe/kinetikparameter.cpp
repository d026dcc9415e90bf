#include "window/eingabe/kinetikparameter.h"

#include <array>

#include "painting/qt_text.h"
#include "run/bezeichnungen.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// The fields of each model and their rows; of FOMC and HS there is one set, the parent's.
struct Modellzeile {
    const char16_t* Name;
    Kinetikart Kinetik;
    int Zeile;
    bool nur_Wirkstoff;
};
constexpr std::array<Modellzeile, 9> Modellzeilen = {{{u"S_DT50", SFO, 1, false},
                                                      {u"S_DT50_1_DFOP", DFOP, 1, false},
                                                      {u"S_DT50_2_DFOP", DFOP, 2, false},
                                                      {u"S_g", DFOP, 3, false},
                                                      {u"S_alpha", FOMC, 1, true},
                                                      {u"S_beta", FOMC, 2, true},
                                                      {u"S_DT50_1_HS", HS, 1, true},
                                                      {u"S_DT50_2_HS", HS, 2, true},
                                                      {u"S_Tb", HS, 3, true}}};

constexpr std::size_t Modelle_der_Metaboliten = FOMC;  // those before it

constexpr std::array<const char16_t*, 3> Korrekturen = {u"S_Q10", u"S_Walker", u"S_TRef"};
constexpr std::array<const char16_t*, 3> Titel = {u"Parent", u"Metabolite 1", u"Metabolite 2"};

}  // namespace

Kinetikparameter::Kinetikparameter(int i_substanz, int Einzug, Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent)
    : Rahmen(u"Kinetikparameter_"_s + in_Qt(i_substanz), Rahmenart::schlicht, Programm, parent), c_(i_substanz) {
    const QString Index = u'_' + in_Qt(c_);
    const QString Titeltext = QString::fromUtf16(Titel[static_cast<std::size_t>(c_)]);
    setAccessibleName(Titeltext);
    auto* Gitter = new Raster(this, Einzug);

    S_Kinetik_ = new Auswahlliste(u"S_Kinetik"_s + Index, 4, this);
    QLabel* L_Kinetik = Schild(u"Kinetics"_s, S_Kinetik_, this);
    L_Kinetik->setObjectName(u"L_Kinetik"_s + Index);
    Gitter->addWidget(L_Kinetik, 0, Raster::Schild);
    Gitter->addWidget(S_Kinetik_, 0, Raster::Feld);
    Gitter->addWidget(Ueberschrift(Titeltext, this), 0, Raster::Schild_2, 1, 4);

    for (const Modellzeile& m : Modellzeilen) {
        if (m.nur_Wirkstoff && c_ > 0) continue;
        const QString Name = QString::fromUtf16(m.Name) + (m.nur_Wirkstoff ? QString() : Index);
        Modellfelder_.push_back(
            {m.Kinetik, erstelle_Feldzeile(Steuerung, *Gitter, m.Zeile, false, Name, Einheitsort::im_Schild, this)});
    }
    int Zeile = 1;
    for (const char16_t* Name : Korrekturen) {
        const Feldzeile z =
            erstelle_Feldzeile(Steuerung, *Gitter, Zeile, true, QString::fromUtf16(Name) + Index, Einheitsort::dahinter, this);
        // All models take the height of the largest: the screen does not jump.
        Gitter->setRowMinimumHeight(Zeile++, z.Feld->sizeHint().height());
    }
    connect(S_Kinetik_, &QComboBox::activated, this,
            [this](int k) { befiehl<&Listenwahl::waehle_Kinetik>(c_, static_cast<Kinetikart>(k)); });
}

void Kinetikparameter::zeige() {
    const auto c = static_cast<std::size_t>(c_);
    const auto st = static_cast<std::size_t>(Stand().i_studie());
    const Kinetikart Kinetik = Stand().Parameter().Kinetik[c][st];
    const std::span<const std::string_view> alle(Kinetiknamen);
    const auto Modelle = c_ == 0 ? alle : alle.first(Modelle_der_Metaboliten);
    S_Kinetik_->zeige(Modelle, Kinetik < Modelle.size() ? int{Kinetik} : -1);
    for (const Modellfeld& m : Modellfelder_) m.Zeile.zeige(m.Kinetik == Kinetik);
}

}  // namespace varnok
