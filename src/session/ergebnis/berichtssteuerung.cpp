#include "session/ergebnis/berichtssteuerung.h"

#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "base/text.h"
#include "records/dateien.h"
#include "reports/ausgabedateien.h"
#include "reports/seitenausgabe.h"
#include "session/ergebnis/herkunft.h"
#include "session/kern/texte.h"

namespace varnok {

void Berichtssteuerung::erstelle() {
    if (!z_.Gestartet) return;
    const bool aktuell = !z_.Hinweis() && !z_.abgedeckt();
    if (!aktuell && !Laeufe_.berechne_auf_Wunsch(false)) return;
    Diagramme_.ziehe_nach(Laeufe_.nimm_Gelaufenes().get());
    const Diagramm* Bild = Diagramme_.vorderes();
    if (Bild == nullptr) return;
    try {
        stelle_her(*Bild);
        Ergebnisdatei_.clear();
        if (z_.ohne_Nebenausgaben) {
            z_.Statuszeile.sage(Texte::Bericht_ohne_Ordner);
            return;
        }
        const std::string Pfad = speichere_Bericht(*Bericht_, Ausgabeordner(*z_.Ausgabeprojekt), z_.Ausgabeprojekt->Pfad());
        Ergebnisdatei_ = Bericht_->Name;
        berichtete_Beschreibung_ = z_.Vorgabe.Beschreibung;
        z_.Statuszeile.sage("Report written: " + Pfad);
    } catch (const Laufzeitfehler& f) {
        z_.Statuszeile.sage("The report was not written.");
        melde(z_, Texte::Laufzeitfehler, f.what());  // the results stay valid and in sight
    }
}

std::string Berichtssteuerung::Ergebnisdatei() const {
    return z_.Vorgabe.Beschreibung == berichtete_Beschreibung_ ? Ergebnisdatei_ : std::string();
}

void Berichtssteuerung::schliesse_veralteten() {
    if (Bericht_ && (z_.Hinweis() || z_.abgedeckt() || Diagramme_.Zeichnung() != Zeichnung_)) schliesse();
}

void Berichtssteuerung::stelle_her(const Diagramm& Bild) {
    Zeichnung_ = Diagramme_.Zeichnung();
    const Berichtsart Art = z_.Zusammenfassung_aktiv() ? Berichtsart::erweitert : Berichtsart::Standard;
    Bericht_ = std::make_unique<Bericht>(
        schreibe_Bericht({z_.zeige(), Art, z_.Namen[Applikation], Programmversion, Berichtszeit_nach(z_.Zeit()), Bild,
                          Diagramme_.Legende(), z_.Einstellung.Bild.fuer_Druck, Herkunft_der_Ergebnisse(z_)}));
}

void Berichtssteuerung::speichere_PDF(const std::string& Pfad) const {
    if (!Bericht_) return;
    const bool RTF = Pfad.size() > 4 && gleich_ohne_Gross_Klein(std::string_view(Pfad).substr(Pfad.size() - 4), Berichtsendung);
    schreibe_Datei(Pfad, RTF ? Bericht_->RTF : als_PDF(*Bericht_->Dokument, Bericht_->Name), als_Datei);
    z_.Statuszeile.sage("Report written: " + Pfad);
}

}  // namespace varnok
