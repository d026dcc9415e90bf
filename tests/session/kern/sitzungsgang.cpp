#include "session/kern/sitzungsgang.h"

#include <algorithm>
#include <exception>
#include <fstream>

#include "base/laufzeitfehler.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"

namespace varnok::gang {
Gang::Gang() {
    Fragen_.bei_Frage = [this] { sieh_bei_Frage_hin(); };
    Fragen_.bei_Zustimmung = [this](const Frage& f) { erlaube_Zugestimmtes(f); };
    Protokoll_.emplace_back("start");
    starte();
    Stand_ = Projekt_.lies();
}

Gang::~Gang() { s_.reset(); }

void Gang::sage(const std::string& Text) { Protokoll_.back() += " " + Text; }

// Who holds the project folder before the program starts.
void Gang::sperre(Sperrlage Lage) {
    zweites_Fenster_.reset();
    const auto Datei = Projekt_.Wurzel() / ".varnok.lock";
    std::filesystem::remove(Datei);
    if (Lage == Sperrlage::zweites_Fenster)
        zweites_Fenster_ = std::make_unique<Projektsperre>(Projektordner(Projekt_.Wurzel().string()));
    if (Lage == Sperrlage::andere_Maschine) std::ofstream(Datei) << "4711\nvarnok\nanother machine\nits number\nits start\n";
}

void Gang::oeffne(Sperrlage Lage) {
    s_.reset();  // of two windows on one folder the second would ask
    letzter_Stand_.reset();
    sperre(Lage);
    Umgebung u{&Fragen_, Projekt_.Wurzel().string(), "", '.', &Zeit_, Welt_.Update()};
    u.weiteres_Fenster = [this](const std::string&) { return Welt_.Fenster_moeglich && ++Welt_.Fenster > 0; };
    u.zuletzt_Datei = (Projekt_.Wurzel() / "recent" / "list.txt").string();
    s_ = std::make_unique<Sitzung>(u);
}

// The program is started, at the latest once all files are what they were.
bool Gang::starte() {
    bool beim_ersten = true;
    const Sperrlage Lage = Lage_;
    Lage_ = Sperrlage::frei;
    for (const bool zweiter : {false, true}) {
        if (zweiter) {
            beim_ersten = false;
            s_.reset();
            const Dateien vorher = Projekt_.lies();
            tue_Fremdes("put back", [&] { return Projekt_.stelle_her(); });
            Projekt_.ordne_Zeiten(vorher, Projekt_.lies());
        }
        oeffne(Lage);
        Fragen_.bestehe_auf(Knopf::Nein);
        const bool offen = tue<&Programmablauf::oeffne_Projekt>();
        if (offen) break;
        if (zweiter) throw Verstoss{"start", "the program does not start although all files are there" + Fragen_.Bericht()};
    }
    tue<&Aktualisierungssteuerung::suche_beim_Start>(
        [this](const std::string& Seite) { tue<&Aktualisierungssteuerung::melde>(Seite); });
    Welt_.Netz.antworte(Scheinwelt::Seite(std::string(Eigene_Version)));
    tue<&Programmablauf::verlasse_Startseite>();
    Fragen_.bestehe_auf(std::nullopt);
    Name_in_Arbeit = getippt_ = false;
    letzter_Stand_ = z().Vorgabe;
    ausstehend_ = 0;
    Klima_von_.clear();
    merke_Wetter();
    return beim_ersten;
}

void Gang::starte_neben(Sperrlage Lage) {
    Lage_ = Lage;
    starte();
    abgestuerzt_ = true;
}

void Gang::starte_ohne(const char* Endung, Knopf Antwort) {
    s_.reset();
    tue_Fremdes("deleted", [&] { return Projekt_.loesche_alle(Endung); });
    oeffne(Sperrlage::frei);
    Fragen_.bestehe_auf(Antwort);
    const bool offen = tue<&Programmablauf::oeffne_Projekt>();
    Fragen_.bestehe_auf(std::nullopt);
    if (offen && Endung == Endungen[Simulation]) throw Verstoss{"start", "the program starts although there is no simulation"};
    if (offen) starte_neben(Sperrlage::frei);  // a simulation that names a compound that is missing comes no farther than that
    abgestuerzt_ = true;
}

void Gang::stuerze_ab(Knopf Antwort, const std::function<void()>& dazwischen) {
    const Vorher v = merke();
    const bool eigenes = !z().Sperre->von_anderem_gehalten();
    s_.reset();
    if (dazwischen) dazwischen();
    Fragen_.antworte_dem_Angebot(Antwort);
    const bool beim_ersten = starte();
    Fragen_.antworte_dem_Angebot(std::nullopt);
    abgestuerzt_ = true;
    if (!v.etwas_in_Arbeit && eigenes) pruefe_Zurueckgebrachtes(v, Antwort == Knopf::Ja && beim_ersten);
}

// What no file held is in `backup`, and on the screen where that was wanted and nothing stood in the way.
void Gang::pruefe_Zurueckgebrachtes(const Vorher& v, bool gewuenscht) {
    const bool gestoert =
        Fragen_.gefragt("Runtime error") || Fragen_.Bericht().find("Not all of the values") != std::string::npos;
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || v.Eingaben[Art] == v.Saetze[Art].gespeichert()) continue;
        if (!Projekt_.gesichert(Bild))
            throw Verstoss{"unsaved values are lost with the program", Satzdatei(v.Saetze[Art].Datei().Name, Art)};
        const std::string jetzt = z().Speicherbild(Art);
        if (gewuenscht && !gestoert && jetzt != v.Eingaben[Art] && !gleiche_Zahlen(jetzt, v.Eingaben[Art]))
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
        v.Eingaben[Art] = z().Speicherbild(Art);
    }
    v.Vorgabe = z().Vorgabe;
    v.etwas_in_Arbeit = etwas_offen();
    return v;
}

bool Gang::etwas_offen() const {
    return Feld_in_Arbeit() || s_->zeige<Applikationstabelle>().ist_in_Arbeit() || s_->zeige<Studienverwaltung>().Name_offen() ||
           s_->zeige<Satzumbenennung>().offen() || s_->zeige<Beschreibungseingabe>().offen() || Name_in_Arbeit;
}

void Gang::tue(const Aktion& a) {
    const Aktionsart& Art = Aktionsarten()[static_cast<std::size_t>(a.Art)];
    Protokoll_.emplace_back(Art.Name);
    Zufall_.beginne(a.Saat);
    Fragen_.beginne();
    erlaubt_.clear();
    abgestuerzt_ = im_Verlauf_bewegt_ = false;
    Art_ = &Art;
    vorher_ = merke();
    try {
        Art.tue(*this);
    } catch (const std::exception& f) {
        throw Verstoss{"exception", f.what()};
    }
    if (s_->zeige<Feldeingabe>().aktives_Feld() < 0) getippt_ = false;
    Protokoll_.back() += Fragen_.Bericht();
    if ((Art.Merkmale & immer) != 0) Name_in_Arbeit = false;
    if (Fund_) throw *Fund_;
    if (!Fragen_.unbekannte().empty()) throw Verstoss{"a question that the walk does not know", Fragen_.unbekannte()};
    pruefe_Dateien(vorher_);
    pruefe_Verworfenes(Art, vorher_, Projekt_.lies());
    Stand_ = Projekt_.lies();
    if (z().beendet()) {
        if (std::filesystem::exists(Projekt_.Wurzel() / "backup/unsaved"))
            throw Verstoss{"values are left for the next start by a program that has ended", ""};
        static constexpr std::array Lagen = {Sperrlage::frei, Sperrlage::zweites_Fenster, Sperrlage::andere_Maschine,
                                             Sperrlage::andere_Maschine, Sperrlage::andere_Maschine};
        Lage_ = Zufall_.eins_von(Lagen);
        starte();
    } else {
        tue<&Laufsteuerung::nimm_Tabellenfehler>();  // the window does both, when the action has been drawn
        tue<&Zwischensicherung::schreibe>();
        tue<&Projektoeffnung::merke>();
        pruefe_Ergebnisse(Art);
        if (!abgestuerzt_) pruefe_Verlauf(Art, vorher_);
    }
    if (Fund_) throw *Fund_;
    if (Projekt_.lies() != Stand_) throw Verstoss{"file written unasked", "by a start, or by undo and redo"};
}

void Gang::setze_ab(bool getippt) {
    pruefe_Dateien(vorher_);
    if (!getippt) pruefe_Verworfenes(*Art_, vorher_, Projekt_.lies());
    Stand_ = Projekt_.lies();
    vorher_ = merke();
}

// What another program does is no matter of the one under test: from now on the files are what it has made of them.
void Gang::tue_Fremdes(const char* Tat, const std::function<std::string()>& tue) {
    const Dateien vorher = Projekt_.lies();
    sage(tue());
    const Dateien nachher = Projekt_.lies();
    std::set<std::string> Namen;
    for (const auto& d : vorher) Namen.insert(d.first);
    for (const auto& d : nachher) Namen.insert(d.first);
    for (const std::string& Name : Namen) {
        const auto alt = vorher.find(Name);
        const auto neu = nachher.find(Name);
        if (alt != vorher.end() && neu != nachher.end() && alt->second == neu->second) continue;
        if (neu != nachher.end()) {
            Stand_[Name] = neu->second;
        } else {
            Stand_.erase(Name);
        }
        const bool umbenannt_fort = Tat == std::string("renamed") && neu == nachher.end();
        if (!umbenannt_fort) ++Fremdes_[Tat + std::string(" ") + Name.substr(Name.rfind('.'))];
    }
}

void Gang::sieh_nach_Lesungen() {
    int Summe = 0;
    for (const Satzplatz& p : z().Saetze) Summe += p.Lesungen() + p.Umbenennungen();
    if (std::exchange(Lesungen_, Summe) != Summe) letzter_Stand_.reset();
}

void Gang::erlaube_offene_Umbenennung() {
    const auto& [Art, Name] = offener_Name_;
    if (!s_ || !s_->zeige<Satzumbenennung>().offen_ueber(Art)) return;
    erlaube_Satz(false, Art);
    erlaube_Datei(Art, Name.ends_with(Endungen[Art]) ? Name.substr(0, Name.size() - 4) : Name);
}

void Gang::erlaube_gelesene() {
    for (const Satzart Art : alle_Arten) {
        if (z().Saetze[Art].gelesen()) erlaube_Datei(Art, z().Namen[Art]);
    }
}

void Gang::erlaube_Startsimulation() {
    for (const Satzart Art : alle_Arten) erlaube_Datei(Art, Startsimulation);
}

// A Yes allows what the question says: the record that it names, with the summary file of its simulation.
void Gang::erlaube_Zugestimmtes(const Frage& f) {
    if (f.Titel == Texte::Datei_fehlt) erlaube_Startsimulation();
    if (f.Titel != Texte::Aenderungen_sichern) return;
    for (const Satzart Art : Eingabearten) {
        if (f.Text.find(std::string("You modified ") + Satzart_Namen[Art] + " input") == std::string::npos) continue;
        const std::size_t bis = f.Text.rfind('\'');
        const std::size_t von = bis == std::string::npos ? bis : f.Text.rfind('\'', bis - 1);
        erlaube_Datei(Art, von == std::string::npos ? z().Namen[Art] : f.Text.substr(von + 1, bis - von - 1));
        erlaube_Datei(Simulation, z().Namen[Simulation]);
    }
}

}  // namespace varnok::gang
