#include "session/saetze/zwischensicherung.h"

#include "base/laufzeitfehler.h"
#include "session/kern/texte.h"

namespace varnok {

// A text that no record can hold keeps its record out; the others are kept.
Zwischenstand Zwischensicherung::jetziger() const {
    Zwischenstand s{z_.Namen[Simulation], z_.Speicherbild(Simulation), {}};
    Sicherungsgut Gut;
    for (const Satzart Art : Eingabearten) Gut.nimm(Saetze_.Ungesichertes(Art));
    s.Stuecke = std::move(Gut.Stuecke);
    return s;
}

bool Zwischensicherung::biete_an() {
    std::optional<std::string> Bytes;
    unerledigt_ = !versuche(z_, [&] {
        if (zustaendig()) Bytes = lies_Zwischenstand(*z_.Ordner);
    });
    if (!Bytes) return false;
    const auto Stand = zerlege_Zwischenstand(*Bytes);
    Sicherungsgut Gut{{{"unsaved values", *Bytes}}, {}};
    if (Stand) {
        Gut.Stuecke = Stand->Stuecke;
        Gut.Stuecke.push_back({"unsaved " + Stand->Simulation + Endungen[Simulation], Stand->Zusammenfassung});
    }
    std::string Text = "The program did not come to its end the last time. No file holds these values:";
    for (const Sicherungsstueck& s : Gut.Stuecke) Text += "\n'" + s.Dateiname + "'";
    const Frage f{Texte::Ungesichertes, Text + "\nDo you want them back?", Symbol::Frage, {Knopf::Ja, Knopf::Nein}};
    const bool gewuenscht = Stand && z_.Welt.Fragen->frage(f) == Knopf::Ja;
    unerledigt_ = !versuche(z_, [&] {
        sichere(z_, Gut);
        loesche_Zwischenstand(*z_.Ordner);
    });
    return gewuenscht && lade(*Stand);
}

bool Zwischensicherung::lade(const Zwischenstand& Stand) {
    return versuche(z_, [&] {
        if (!Saetze_.lade_Zwischenstand(Stand))
            melde(z_, Texte::Ungesichertes,
                  "Not all of the values could be brought back. They are kept in the folder \"backup\".");
    });
}

void Zwischensicherung::schreibe() {
    if (!z_.Gestartet || !zustaendig() || Felder_.ist_in_Arbeit() || z_.beendet()) return;
    Zwischenstand s = jetziger();
    if (s.Stuecke.empty() && !z_.verschieden(Simulation)) s = {};
    if (s == geschrieben_) return;
    try {
        if (s == Zwischenstand{}) {
            loesche_Zwischenstand(*z_.Ordner);
        } else {
            schreibe_Zwischenstand(*z_.Ordner, s);
        }
        geschrieben_ = std::move(s);
        gescheitert_ = false;
    } catch (const Laufzeitfehler& f) {
        if (!gescheitert_) z_.Statuszeile.sage(std::string("Unsaved values are not kept: ") + f.what());
        gescheitert_ = true;
    }
}

void Zwischensicherung::raeume() {
    if (!z_.Gestartet || !zustaendig()) return;
    try {
        loesche_Zwischenstand(*z_.Ordner);
        geschrieben_ = {};
    } catch (const Laufzeitfehler&) {
        return;  // the next start offers what is saved by now
    }
}

}  // namespace varnok
