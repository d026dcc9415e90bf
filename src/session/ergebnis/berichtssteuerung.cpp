#include "session/ergebnis/berichtssteuerung.h"

#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "base/text.h"
#include "records/dateien.h"
#include "reports/ausgabedateien.h"
#include "reports/seitenausgabe.h"
#include "session/ergebnis/herkunft.h"
#include "session/kern/texte.h"
#include "session/kern/versuch.h"

namespace varnok {

void Berichtssteuerung::erstelle() {
    if (!z_.Gestartet) return;
    const bool aktuell = !z_.Hinweis() && !z_.abgedeckt();
    if (!aktuell && !Laeufe_.berechne_auf_Wunsch(false)) return;
    Diagramme_.ziehe_nach(Laeufe_.nimm_Gelaufenes().get());
    const Diagramm* Bild = Diagramme_.vorderes();
    if (Bild == nullptr) return;
    const std::string Fehler = Fehler_bei([&] { schreibe(*Bild); });
    if (Fehler.empty()) return;
    z_.Statuszeile.sage("The report was not written.");
    melde_Fehler(z_, Fehler);  // the results stay valid and in sight
}

void Berichtssteuerung::schreibe(const Diagramm& Bild) {
    stelle_her(Bild);
    Ergebnisdatei_.clear();
    if (z_.ohne_Nebenausgaben) return z_.Statuszeile.sage(Texte::Bericht_ohne_Ordner);
    const std::string Pfad = speichere_Bericht(*Bericht_, Ausgabeordner(*z_.Ausgabeprojekt), z_.Ausgabeprojekt->Pfad());
    Ergebnisdatei_ = Bericht_->Name;
    berichtete_Beschreibung_ = z_.Vorgabe.Beschreibung;
    z_.Statuszeile.sage("Report written: " + Pfad);
}

std::string Berichtssteuerung::Ergebnisdatei() const {
    return z_.Vorgabe.Beschreibung == berichtete_Beschreibung_ ? Ergebnisdatei_ : std::string();
}

Berichtssteuerung::Grundlage Berichtssteuerung::jetzige_Grundlage() const {
    return {Diagramme_.Zeichnung(), z_.Vorgabe, z_.Namen, z_.Einstellung.Bild.fuer_Druck};
}

void Berichtssteuerung::schliesse_veralteten() {
    if (!Bericht_) return;
    if (!z_.Hinweis() && !z_.abgedeckt() && Grundlage_ == jetzige_Grundlage()) {
        if (Herkunft_ == Herkunft_der_Ergebnisse(z_)) return;
        z_.Statuszeile.sage_dazu(Texte::Bericht_ueberholt);  // nothing else that can be seen has changed
    }
    schliesse();
}

// Valid results are those of the present input in all that a run reads. A report tells of it in the rest, too: the date in
// constant climate, the text of a number.
Ergebnisse Berichtssteuerung::mit_jetziger_Vorgabe() const {
    const auto Vorgabe = std::make_shared<const Eingabe>(z_.Vorgabe);
    Ergebnisse Werte = z_.Werte();
    for (const int st : z_.gezeigte_Studien()) {
        const auto e = std::make_shared<Ergebnis>(*Werte.at(static_cast<std::size_t>(st)));
        e->Vorgabe = Vorgabe;
        Werte[static_cast<std::size_t>(st)] = e;
    }
    return Werte;
}

void Berichtssteuerung::stelle_her(const Diagramm& Bild) {
    const Ergebnisse Werte = mit_jetziger_Vorgabe();
    Grundlage_ = jetzige_Grundlage();
    Herkunft_ = Herkunft_der_Ergebnisse(z_);
    const Berichtsart Art = z_.Zusammenfassung_aktiv() ? Berichtsart::erweitert : Berichtsart::Standard;
    Bericht_ = std::make_unique<Bericht>(schreibe_Bericht({{Werte, z_.Sicht, z_.Vorgabe},
                                                           Art,
                                                           z_.Namen[Applikation],
                                                           Programmversion,
                                                           Berichtszeit_nach(z_.Zeit()),
                                                           Bild,
                                                           Diagramme_.Legende(),
                                                           z_.Einstellung.Bild.fuer_Druck,
                                                           Herkunft_}));
}

void Berichtssteuerung::speichere_PDF(const std::string& Pfad) const {
    if (!Bericht_) return;
    const bool RTF = Pfad.size() > 4 && gleich_ohne_Gross_Klein(std::string_view(Pfad).substr(Pfad.size() - 4), Berichtsendung);
    schreibe_Datei(Pfad, RTF ? Bericht_->RTF : als_PDF(*Bericht_->Dokument, Bericht_->Name), als_Datei);
    z_.Statuszeile.sage("Report written: " + Pfad);
}

}  // namespace varnok
