#include "session/kern/probesitzung.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "records/satz.h"
#include "records/simulation.h"

namespace varnok {
namespace {

// Nobody else's, nor that of a process before with the same number.
std::filesystem::path neuer_Ordner() {
    std::string Muster = (std::filesystem::temp_directory_path() / "varnok-XXXXXX").string();
    if (::mkdtemp(Muster.data()) == nullptr) throw std::runtime_error("no folder for the test: " + Muster);
    std::filesystem::permissions(Muster, std::filesystem::perms(0755));  // some tests look on as another user
    std::filesystem::create_directories(std::filesystem::path(Muster) / "input");
    return Muster;
}

}  // namespace

Probesitzung::Probesitzung() : Wurzel_(neuer_Ordner()) { schreibe_Probe(); }

Probesitzung::~Probesitzung() {
    s_.reset();
    std::filesystem::remove_all(Wurzel_);
}

void Probesitzung::schreibe_Probe() {
    schreibe_Saetze("Probe", Felder_);
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Probe", {"A trial", {"", "Probe", "Probe", "Probe"}});
}

void Probesitzung::schreibe_Saetze(const std::string& Name, const Eingabe& e) const {
    const Projektordner Ordner(Wurzel_.string());
    for (const Satzart Art : Eingabearten) Satz_schreiben(Ordner, Name, Art, e, Sicht_);
}

Sitzung& Probesitzung::nur_geladen() {
    s_.reset();  // of two windows on one folder the second would ask
    s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Wurzel_.string(), "", '.'});
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
    return *s_;
}

Sitzung& Probesitzung::gestartet() {
    nur_geladen().fuehre_aus<&Programmablauf::verlasse_Startseite>();
    return *s_;
}

std::string Probesitzung::Datei(const std::string& Name) const {
    std::ifstream Strom(Wurzel_ / Name, std::ios::binary);
    std::ostringstream Inhalt;
    Inhalt << Strom.rdbuf();
    return Inhalt.str();
}

int Probesitzung::Feld(const std::string& Objektname) { return Feld_mit_Namen(Objektname); }

bool Probesitzung::tippe(const std::string& Objektname, const std::string& Text) {
    const int f = Feld(Objektname);
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, Text);
    return s_->fuehre_aus<&Feldeingabe::verlasse>(f);
}

const Ergebnis& Probesitzung::Werte(int i_studie) const { return s_->Stand().zeige().Studie(i_studie); }

float Probesitzung::Maximum(int i_studie, int i_substanz) const {
    return Werte(i_studie).Werte(Gesamtgehalt, i_substanz).Maximum_Bodentiefe;
}

bool benenne_um(Sitzung& s, Satzart Art, const std::string& Name, bool Enter) {
    s.fuehre_aus<&Satzumbenennung::beginne>(Art);
    s.fuehre_aus<&Satzumbenennung::aendere>(Name);
    const bool fertig = s.fuehre_aus<&Satzumbenennung::bestaetige>(Enter);
    s.fuehre_aus<&Satzumbenennung::nimm_zurueck>();
    return fertig;
}

}  // namespace varnok
