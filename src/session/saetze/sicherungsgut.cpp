#include "session/saetze/sicherungsgut.h"

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "session/kern/texte.h"

namespace varnok {

void Sicherungsgut::nimm_Datei(const std::string& Pfad, const std::string& Dateiname) {
    try {
        Stuecke.push_back({Dateiname, lies_Datei(Pfad)});
    } catch (const Laufzeitfehler& f) {
        Gruende.emplace_back(f.what());
    }
}

void Sicherungsgut::nimm(Sicherungsgut anderes) {
    for (auto& s : anderes.Stuecke) Stuecke.push_back(std::move(s));
    for (auto& g : anderes.Gruende) Gruende.push_back(std::move(g));
}

void sichere(Schauplatz& z, const Sicherungsgut& Gut) {
    std::string Gruende;
    for (const std::string& g : Gut.Gruende) Gruende += g + "\n";
    std::string Ort;
    try {
        Ort = sichere(*z.Ordner, z.Zeit(), Gut.Stuecke);
    } catch (const Laufzeitfehler& f) {
        Gruende += std::string(f.what()) + "\n";
    }
    if (!Gruende.empty()) {
        const Frage f{
            Texte::Laufzeitfehler, Gruende + Texte::nicht_zu_behalten, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}};
        if (z.Welt.Fragen->frage(f) != Knopf::Ja) throw Befehl_aufgegeben();
    }
    if (Ort.empty()) return;
    std::string Namen;
    for (const Sicherungsstueck& s : Gut.Stuecke) Namen += (Namen.empty() ? "\"" : ", \"") + s.Dateiname + "\"";
    // A command may have told something before, or keep something twice.
    z.Statuszeile.sage_dazu("What was there before is kept in " + Ort + ": " + Namen);
}

void verlange_Schreibrecht(const Schauplatz& z) {
    if (z.nur_lesbar) throw Laufzeitfehler("The project folder \"" + z.Ordner->Pfad() + "\"" + Texte::nur_lesbar);
}

}  // namespace varnok
