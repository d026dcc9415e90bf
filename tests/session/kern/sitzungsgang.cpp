#include "session/kern/sitzungsgang.h"

#include <algorithm>
#include <exception>

#include "base/laufzeitfehler.h"

namespace varnok::gang {
namespace {

constexpr std::array alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};

}  // namespace

Knopf Antworter::frage(const Frage& f) {
    std::vector<Knopf> moegliche = f.Knoepfe;
    const bool ja_nein = std::find(moegliche.begin(), moegliche.end(), Knopf::Nein) != moegliche.end();
    if (ja_nein) moegliche.push_back(Knopf::nicht_jetzt);
    Knopf Antwort = Zufall_->eins_von(moegliche);
    if (fest_) Antwort = ja_nein ? *fest_ : Knopf::OK;
    if (Angebot_ && f.Titel == "Unsaved values" && ja_nein) Antwort = *Angebot_;
    static const std::array Woerter = {"OK", "Cancel", "Yes", "No", "Esc"};
    const char* Wort = Woerter[static_cast<std::size_t>(Antwort)];
    ++Zaehler[f.Titel + ": " + Wort];
    Titel_.insert(f.Titel);
    ja_ = ja_ || Antwort == Knopf::Ja;
    Bericht_ += " {" + f.Titel + ": " + f.Text.substr(0, 90) + ": " + Wort + "}";
    return Antwort;
}

bool Antworter::gefragt(const std::string& Titel) const { return Titel_.contains(Titel); }

void Antworter::beginne() {
    ja_ = false;
    Titel_.clear();
    Bericht_.clear();
    fest_.reset();
}

Gang::Gang() {
    starte();
    Stand_ = Projekt_.lies();
}

Gang::~Gang() { s_.reset(); }

void Gang::sage(const std::string& Text) { Protokoll_.back() += " " + Text; }

// The program is started, at the latest once all files are what they were.
bool Gang::starte() {
    bool beim_ersten = true;
    for (const bool zweiter : {false, true}) {
        s_.reset();  // of two windows on one folder the second would ask
        if (zweiter) {
            beim_ersten = false;
            const Dateien vorher = Projekt_.lies();
            Projekt_.stelle_her();
            Projekt_.ordne_Zeiten(vorher, Projekt_.lies());
        }
        Fragen_.bestehe_auf(Knopf::Nein);
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Projekt_.Wurzel().string(), "", '.', &Zeit_});
        const bool offen = s_->fuehre_aus<&Programmablauf::oeffne_Projekt>();
        if (offen) break;
        if (zweiter) throw Verstoss{"start", "the program does not start although all files are there"};
    }
    s_->fuehre_aus<&Programmablauf::starte>();
    Fragen_.bestehe_auf(std::nullopt);
    Name_in_Arbeit = getippt_ = false;
    letzter_Stand_ = z().Vorgabe;
    ausstehend_ = 0;
    Klima_von_.clear();
    bekannt_ = z().Werte();
    merke_Wetter();
    return beim_ersten;
}

void Gang::stuerze_ab() {
    const Vorher v = merke();
    const Knopf Antwort = r().eins_von(std::array{Knopf::Ja, Knopf::Ja, Knopf::Nein, Knopf::nicht_jetzt});
    Fragen_.antworte_dem_Angebot(Antwort);
    const bool beim_ersten = starte();
    Fragen_.antworte_dem_Angebot(std::nullopt);
    abgestuerzt_ = true;
    if (!v.etwas_in_Arbeit) pruefe_Zurueckgebrachtes(v, Antwort == Knopf::Ja && beim_ersten);
}

// What no file held is in `backup`, and on the screen where that was wanted and nothing stood in the way.
void Gang::pruefe_Zurueckgebrachtes(const Vorher& v, bool gewuenscht) {
    const bool gestoert =
        Fragen_.gefragt("Runtime error") || Fragen_.Bericht().find("Not all of the values") != std::string::npos;
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || Bild == v.Saetze[Art].gespeichert()) continue;
        if (!Projekt_.gesichert(Bild))
            throw Verstoss{"unsaved values are lost with the program", Satzdatei(v.Saetze[Art].Datei().Name, Art)};
        const std::string jetzt = z().Speicherbild(Art);
        if (gewuenscht && !gestoert && jetzt != Bild && !gleiche_Zahlen(jetzt, Bild))
            throw Verstoss{"unsaved values do not come back", Satzdatei(v.Saetze[Art].Datei().Name, Art)};
    }
}

Gang::Vorher Gang::merke() const {
    Vorher v;
    v.Saetze = z().Saetze;
    for (const Satzart Art : alle_Arten) {
        try {
            v.Bilder[Art] = z().Speicherbytes(Art);
        } catch (const Laufzeitfehler&) {
            v.Bilder[Art].clear();
        }
    }
    v.Vorgabe = z().Vorgabe;
    v.etwas_in_Arbeit = Feld_in_Arbeit() || s_->zeige<Applikationstabelle>().ist_in_Arbeit() ||
                        s_->zeige<Studienverwaltung>().Name_offen() || s_->zeige<Beschreibungseingabe>().offen() ||
                        Name_in_Arbeit;
    return v;
}

void Gang::tue(const Aktion& a) {
    const Aktionsart& Art = Aktionsarten()[static_cast<std::size_t>(a.Art)];
    Protokoll_.emplace_back(Art.Name);
    Zufall_.beginne(a.Saat);
    Fragen_.beginne();
    abgestuerzt_ = false;
    const Vorher v = merke();
    try {
        Art.tue(*this);
    } catch (const std::exception& f) {
        throw Verstoss{"exception", f.what()};
    }
    if (s_->zeige<Feldeingabe>().aktives_Feld() < 0) getippt_ = false;
    Protokoll_.back() += Fragen_.Bericht();
    if ((Art.Merkmale & immer) != 0) Name_in_Arbeit = false;
    pruefe_Dateien(Art, v);
    if (z().beendet()) {
        if (std::filesystem::exists(Projekt_.Wurzel() / "backup/unsaved"))
            throw Verstoss{"values are left for the next start by a program that has ended", ""};
        starte();
        Stand_ = Projekt_.lies();
        return;
    }
    s_->fuehre_aus<&Zwischensicherung::schreibe>();  // the window does, when the action has been drawn
    pruefe_Ergebnisse(Art);
    if (!abgestuerzt_) pruefe_Verlauf(Art, v);
    Stand_ = Projekt_.lies();
}

}  // namespace varnok::gang
