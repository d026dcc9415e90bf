#include "session/saetze/studienverwaltung.h"

#include <algorithm>

#include "records/satztext.h"
#include "run/studientabellen.h"
#include "session/kern/texte.h"

namespace varnok {

void Studienverwaltung::oeffne(const std::string& Vorschlag, bool neu) {
    Name_offen_ = true;
    neu_ = neu;
    Vorschlag_ = Entwurf_ = Vorschlag;
}

void Studienverwaltung::addiere() {
    if (darf_addieren()) oeffne("new Study " + std::to_string(z_.Studienzahl() + 1), true);
}

void Studienverwaltung::beginne_Umbenennen() {
    if (!Name_offen_ && z_.Studienzahl() > 0) oeffne(z_.Vorgabe.Studie[static_cast<std::size_t>(z_.i_studie())], false);
}

void Studienverwaltung::nimm_zurueck() { Name_offen_ = false; }

void Studienverwaltung::bestaetige(bool Enter) {
    if (!Name_offen_) return;
    std::string Name = Entwurf_.empty() ? Vorschlag_ : Entwurf_;
    const std::string Einwand = Einwand_gegen_Text(Name);
    if (!Einwand.empty()) {
        // Closed before the message: the box must not be left a second time by it.
        Name_offen_ = Enter;
        melde(z_, Texte::keine_gueltige_Eingabe, "\"" + Name + "\" cannot be the name of a study: " + Einwand);
        if (Enter) return;
        Name = Vorschlag_;
    }
    Name_offen_ = false;
    if (neu_) {
        fuege_an(Name);
    } else {
        benenne_um(Name);
    }
}

void Studienverwaltung::fuege_an(const std::string& Name) {
    z_.Saetze[Wirkstoff].merke_Aenderung();
    z_.Vorgabe.Studie.push_back(Name);
    const int neu = z_.Studienzahl() - 1;
    setze_Startwerte(z_.Parameter(), static_cast<std::size_t>(neu));
    z_.Sicht.Studie_Index = neu;
    z_.zeige_Studien();
    Felder_.fuelle();
    Laeufe_.berechne();
}

void Studienverwaltung::benenne_um(const std::string& Name) {
    std::string& Platz = z_.Vorgabe.Studie[static_cast<std::size_t>(z_.i_studie())];
    if (Platz == Name) return;
    Platz = Name;
    z_.Saetze[Wirkstoff].merke_Aenderung();
}

void Studienverwaltung::loesche() {
    if (!darf_loeschen()) return;
    const Frage f{"Delete study", "Do you really want to delete this study?", Symbol::Frage, {Knopf::Ja, Knopf::Nein}};
    if (z_.Welt.Fragen->frage(f) != Knopf::Ja) return;
    const int Platz = z_.i_studie();
    ruecke_Kinetik_vor(z_.Parameter(), static_cast<std::size_t>(Platz), static_cast<std::size_t>(z_.Studienzahl()));
    z_.Vorgabe.Studie.erase(z_.Vorgabe.Studie.begin() + Platz);
    setze_Startwerte(z_.Parameter(), z_.Vorgabe.Studie.size());
    z_.Sicht.Studie_Index = std::min(Platz, z_.Studienzahl() - 1);
    // The flag of the application pattern, not that of the compound: the question on exit has always named that record.
    z_.Saetze[Applikation].merke_Aenderung();
    z_.Statuszeile.sage("Koc, Q10, Walker, To and kinetics of the following studies stay with their place. Please check.");
    Felder_.fuelle();
    Laeufe_.berechne();
}

}  // namespace varnok
