#include "window/ergebnis/ergebnisbereich.h"

#include <QEvent>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "painting/qt_text.h"
#include "run/bezeichnungen.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "window/ergebnis/abdeckung.h"
#include "window/ergebnis/diagrammflaeche.h"
#include "window/ergebnis/ergebnisrahmen.h"
#include "window/ergebnis/legendenrahmen.h"
#include "window/ergebnis/manuelle_skalierung.h"
#include "window/kern/bausteine.h"

namespace varnok {

using namespace Qt::StringLiterals;

Ergebnisbereich::Ergebnisbereich(Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Ergebnisbereich"_s, Rahmenart::schlicht, Programm, parent) {
    Berechnungsmodus_ = new Reiter(u"Berechnungsmodus"_s, u"Metabolism scheme"_s, this);
    Berechnungsmodus_->setDocumentMode(false);
    for (std::size_t m = 0; m < Seiten_.size(); ++m) erstelle_Seite(static_cast<Stoffschema>(m));
    Abdeckung_ = new Abdeckung(this);
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(0, 0, 0, 0);
    Spalte->addWidget(Berechnungsmodus_);
    Berechnungsmodus_->Leiste()->darf_wechseln = [this] { return schliesse_Feld_ab(false); };
    connect(Berechnungsmodus_, &QTabWidget::currentChanged, this,
            [this](int m) { befiehl<&Listenwahl::waehle_Berechnungsmodus>(static_cast<Stoffschema>(m)); });
}

void Ergebnisbereich::erstelle_Seite(Stoffschema m) {
    Seite& s = Seiten_[m];
    s.Flaeche = new QWidget(this);
    s.Stapel = new QStackedLayout(s.Flaeche);
    const int n = Anzahl_Stoffe(m);
    for (int c = 0; c < n; ++c) s.Diagramme.push_back(erstelle_Flaeche(false, Diagrammsatz_von(m, c), s));
    if (Mehrfachsatz_von(m) != kein_Diagramm) s.Diagramme.push_back(erstelle_Flaeche(false, Mehrfachsatz_von(m), s));
    for (int c = 0; c < n; ++c) s.Zusammenfassungen.push_back(erstelle_Flaeche(true, Zusammenfassungssatz_von(m, c), s));
    s.Flaeche->installEventFilter(this);
    Berechnungsmodus_->addTab(s.Flaeche, in_Qt(Schemanamen[m]));
}

Diagrammflaeche* Ergebnisbereich::erstelle_Flaeche(bool Zusammenfassung, int Nummer, Seite& s) {
    const QString Titel = Zusammenfassung ? u"Calculated soil concentrations (TWA):"_s : u"Calculated soil concentrations:"_s;
    auto* d = new Diagrammflaeche(Zusammenfassung, Nummer, Titel, s.Flaeche);
    s.Stapel->addWidget(d);
    connect(d, &Diagrammflaeche::weiterzuschalten, this, [this] { befiehl<&Diagrammsteuerung::schalte_weiter>(); });
    connect(d, &Diagrammflaeche::Zeitraum_gezogen, this, [this](double von, double bis) {
        befiehl<&Diagrammsteuerung::zeige_Zeitraum>(Zeitraum{von, bis});
    });
    connect(d, &Diagrammflaeche::gedreht, this,
            [this](double Faktor, double Tag) { befiehl<&Diagrammsteuerung::strecke_um>(Faktor, Tag); });
    // The press ends before the dialog takes over.
    connect(d, &Diagrammflaeche::zu_skalieren, this, &Ergebnisbereich::skaliere, Qt::QueuedConnection);
    connect(d->Legende(), &Flaechenrahmen::umgestellt, this, [this, d, Zusammenfassung] {
        Programm_.fuehre_aus<&Diagrammsteuerung::merke_Legende>(Zusammenfassung, d->Nummer(), d->Legende()->gezogen());
    });
    return d;
}

Diagrammflaeche* Ergebnisbereich::Flaeche_vorn(const Seite& s) const {
    const auto& Flaechen = Stand().Zusammenfassung_aktiv() ? s.Zusammenfassungen : s.Diagramme;
    const int vorn = Programm_.zeige<Diagrammsteuerung>().vorne();
    return *std::find_if(Flaechen.begin(), Flaechen.end(), [vorn](const Diagrammflaeche* d) { return d->Nummer() == vorn; });
}

Diagrammflaeche* Ergebnisbereich::Flaeche_fuer_Befehl() {
    if (!befiehl<&Programmablauf::beginne_Dialog>() || Stand().abgedeckt() || !Stand().Gestartet) return nullptr;
    Diagrammflaeche* d = Flaeche_vorn();
    return d->Inhalt() ? d : nullptr;
}

void Ergebnisbereich::skaliere() {
    if (QApplication::activeModalWidget() || !Flaeche_fuer_Befehl()) return;
    Manuelle_Skalierung Dialog(
        Programm_.zeige<Diagrammsteuerung>().X_Start(), Programm_.zeige<Diagrammsteuerung>().X_Ende(),
        Stand().Welt.Dezimalzeichen,
        [this](const std::string& Start, const std::string& Ende) {
            return Programm_.fuehre_aus<&Diagrammsteuerung::skaliere>(Start, Ende);
        },
        window());
    Dialog.exec();
    befiehl<&Laufsteuerung::schliesse_Skalierung>();
}

void Ergebnisbereich::hole_Ergebnisrahmen() {
    for (const Seite& s : Seiten_) {
        for (const auto* Flaechen : {&s.Diagramme, &s.Zusammenfassungen}) {
            for (const Diagrammflaeche* d : *Flaechen) {
                if (d->Tafel()) d->Tafel()->verbirg(false);
            }
        }
    }
}

bool Ergebnisbereich::eventFilter(QObject* Objekt, QEvent* e) {
    if (e->type() == QEvent::Resize || e->type() == QEvent::Show) decke_zu();
    return Rahmen::eventFilter(Objekt, e);
}

void Ergebnisbereich::decke_zu() {
    const QWidget* Flaeche = Berechnungsmodus_->currentWidget();
    Abdeckung_->setGeometry(QRect(Flaeche->mapTo(this, QPoint(0, 0)), Flaeche->size()));
}

// The grids have a spare last row until the user chooses a view; another list of windows brings it back.
void Ergebnisbereich::bestimme_Zeilen() {
    const TWA_Listenart TWA_Zeiten = Stand().Parameter().TWA_Zeiten;
    if (TWA_Zeiten_ != TWA_Zeiten) {
        Ersatzzeile_ = true;
    } else if (PEC_Typ_ != Sicht().PEC_Typ) {
        Ersatzzeile_ = false;
    }
    TWA_Zeiten_ = TWA_Zeiten;
    PEC_Typ_ = Sicht().PEC_Typ;
}

void Ergebnisbereich::fuelle_Tafeln(const Seite& s) {
    const int n = static_cast<int>(s.Zusammenfassungen.size());
    const int wichtig = Zeile_des_Mittelwerts(Sicht());
    for (int c = 0; c < n; ++c) {
        const auto k = static_cast<std::size_t>(c);
        if (Stand().Zusammenfassung_aktiv()) {
            s.Zusammenfassungen[k]->Tafel()->zeige(Ergebnisse_aller_Studien(Stand(), c), wichtig);
            continue;
        }
        Tabellentext Tabelle = Ergebnisse_einer_Studie(Stand(), c);
        if (Ersatzzeile_) {
            std::fill(Tabelle.back().begin(), Tabelle.back().end(), std::string());
        } else {
            Tabelle.pop_back();
        }
        s.Diagramme[k]->Tafel()->zeige(Tabelle, wichtig);
    }
}

void Ergebnisbereich::fuelle_Diagramme(const Seite& s) {
    const auto& Flaechen = Stand().Zusammenfassung_aktiv() ? s.Zusammenfassungen : s.Diagramme;
    const auto& Liste = Programm_.zeige<Diagrammsteuerung>().Diagramme();
    for (Diagrammflaeche* f : Flaechen) {
        const auto Treffer = std::find_if(Liste.begin(), Liste.end(), [&](const Diagramm& d) {
            return d.Nummer == f->Nummer() && d.Zusammenfassung == Stand().Zusammenfassung_aktiv();
        });
        if (Treffer == Liste.end()) {
            f->leere();
        } else {
            f->zeige(*Treffer, Programm_.zeige<Diagrammsteuerung>().Anblick());
        }
    }
}

void Ergebnisbereich::zeige_Ergebnisse(Seite& s) {
    const bool mit_Tafel = Sicht().PEC_Typ != Hintergrund;
    for (const auto* Flaechen : {&s.Diagramme, &s.Zusammenfassungen}) {
        for (const Diagrammflaeche* d : *Flaechen) {
            if (d->Tafel()) d->Tafel()->erlaube(mit_Tafel);
        }
    }
    if (!Stand().abgedeckt() && Zeichnung_ != Programm_.zeige<Diagrammsteuerung>().Zeichnung()) {
        Zeichnung_ = Programm_.zeige<Diagrammsteuerung>().Zeichnung();
        // In the view without grids they keep the last text they had.
        if (mit_Tafel) fuelle_Tafeln(s);
        fuelle_Diagramme(s);
    }
    // Who reads off by keys goes on with the diagram that comes.
    const bool im_Fokus = s.Stapel->currentWidget()->hasFocus();
    s.Stapel->setCurrentWidget(Flaeche_vorn(s));
    if (im_Fokus) s.Stapel->currentWidget()->setFocus();
}

void Ergebnisbereich::zeige() {
    Berechnungsmodus_->zeige_Seite(Vorgabe().Berechnungsmodus);
    bestimme_Zeilen();
    Seite& s = Seiten_[Vorgabe().Berechnungsmodus];
    zeige_Ergebnisse(s);
    decke_zu();
    zeige_Abdeckung();
}

void Ergebnisbereich::zeige_Abdeckung() {
    const QString Wort = in_Qt(Stand().Abdeckungswort());
    Seiten_[Vorgabe().Berechnungsmodus].Flaeche->setEnabled(Wort.isEmpty());
    Abdeckung_->zeige(!Wort.isEmpty(), Wort);
}

}  // namespace varnok
