#include "satzprobe.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "base/laufzeitfehler.h"

namespace varnok::probe {

namespace fs = std::filesystem;

Zeitordner::Zeitordner() {
    std::string Muster = (fs::temp_directory_path() / "varnok-records-XXXXXX").string();
    if (!mkdtemp(Muster.data())) throw std::runtime_error("no temporary folder");
    Pfad_ = Muster;
}

Zeitordner::~Zeitordner() {
    std::error_code Fehler;
    fs::remove_all(Pfad_, Fehler);
}

std::string Zeitordner::Pfad(const std::string& Name) const { return Name.empty() ? Pfad_.string() : (Pfad_ / Name).string(); }

Probeordner::Probeordner(const std::string& Eingabe) : Eingabe_(Eingabe) { fs::create_directory(Zeit_.Pfad(Eingabe)); }

void Probeordner::lege_an(const std::string& Datei, const std::string& Bytes) const { schreibe(Eingabedatei(Datei), Bytes); }

std::string Probeordner::Inhalt(const std::string& Datei) const { return probe::Inhalt(Eingabedatei(Datei)); }

std::vector<std::string> Probeordner::Dateien() const {
    std::vector<std::string> Namen;
    for (const auto& Eintrag : fs::directory_iterator(Zeit_.Pfad(Eingabe_))) Namen.push_back(Eintrag.path().filename());
    return Namen;
}

std::string Inhalt(const std::string& Pfad) {
    std::ifstream Datei(Pfad, std::ios::binary);
    if (!Datei) throw std::runtime_error("cannot read " + Pfad);
    return {std::istreambuf_iterator<char>(Datei), {}};
}

void schreibe(const std::string& Pfad, const std::string& Bytes) {
    std::ofstream Datei(Pfad, std::ios::binary);
    Datei << Bytes << std::flush;
    if (!Datei) throw std::runtime_error("cannot write " + Pfad);
}

namespace {

void fuelle_Studie(Satzprobe& p, std::size_t Studie) {
    Laufparameter& l = p.Felder.Parameter;
    const double s = static_cast<double>(Studie + 1);
    p.Felder.Studie.push_back(Studie == 0 ? "Löss, Feld 1" : "Study no " + std::to_string(Studie));
    for (std::size_t c = 0; c < Stoffe; ++c) {
        const double z = 10 * s + static_cast<double>(c);
        l.KOC[c][Studie] = 100 + z;
        l.Q10[c][Studie] = 2 + z / 1000;
        l.Walker[c][Studie] = z / 100;
        l.TRef[c][Studie] = 15 + z / 10;
        l.k_SFO[c][Studie] = 1 / z;
        l.k1_DFOP[c][Studie] = 2 / z;
        l.k2_DFOP[c][Studie] = 0.003 / z;
        l.g_DFOP[c][Studie] = z / 128;
        l.Kinetik[c][Studie] = DFOP;
    }
    l.Kinetik[0][Studie] = Studie == 0 ? FOMC : HS;
    l.Kinetik[1][Studie] = SFO;
    l.alpha_FOMC[Studie] = 0.7 + s;
    l.beta_FOMC[Studie] = 1e-5 * s;
    l.k1_HS[Studie] = 0.07 / s;
    l.k2_HS[Studie] = 0.007 / s;
    l.Tb_HS[Studie] = 12.5 * s;
}

}  // namespace

Satzprobe volle_Probe(int Studien, char Dezimalzeichen) {
    Satzprobe p;
    Laufparameter& l = p.Felder.Parameter;
    l.Bodendichte = 1.5;
    l.Bodentiefe = 5;
    l.Plateautiefe = 20;
    l.Kohlenstoffgehalt = 1.25;
    l.Feldkapazitaet = 30.5;
    l.Welkepunkt = 10.1;
    l.Klimamodus = nach_Klimadatei;
    l.Szenariotemperatur = 21;
    l.Einheit = Mikrogramm;
    l.Separate_Rueckstaende = im_Jahr_getrennt;
    l.TWA_Zeiten = Monatsliste;
    l.Ausgabename_Teile = {1, 0, 2, 3, 0, 1, 255};
    l.Rechenmodus = 3;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Studien); ++i) fuelle_Studie(p, i);

    p.Sicht.Substanz = 1;
    p.Sicht.PEC_Typ = Hintergrund;
    Eingabe& e = p.Felder;
    e.Berechnungsmodus = zwei_parallel;
    e.Name_Wirkstoff = "Wirkstoff 1 µ";
    e.Molmasse_Wirkstoff = "300.25";
    e.Name_Met_1 = "M 01";
    e.Molmasse_Met_1 = "200";
    e.Bildungsanteil_Met_1 = "0.5";
    e.Name_Met_2 = "M 02";
    e.Molmasse_Met_2 = "150.125";
    e.Bildungsanteil_Met_2 = "0.25";
    e.Applikationsmuster = unregelmaessig;
    e.App_Monat = 2;
    e.App_Tag = 30;
    e.Applikationsrate = "750.5";
    e.Interzeption = "25";
    e.Intervall_Index = 13;
    e.Anzahl_Index = 1;
    e.Applikationsschema = {{"01", "04", "100", "0"}, {"15", "04", "200.5", "12.5"}, {"30", "11", "75", "50"}};
    e.Bodenszenario = "Sandy loam, \"dry\"";
    e.Klimaszenario = "Temperate site";
    for (Zahlwert* Feld : {&e.Molmasse_Wirkstoff, &e.Molmasse_Met_2, &e.Bildungsanteil_Met_1, &e.Bildungsanteil_Met_2,
                           &e.Applikationsrate, &e.Applikationsschema[1][3]}) {
        std::string Text = Feld->Text();
        std::replace(Text.begin(), Text.end(), '.', Dezimalzeichen);
        *Feld = Text;
    }
    return p;
}

Lesebefund lies(const std::string& Bytes, Satzart Art, Satzprobe& p, char Dezimalzeichen) {
    return Satz_lesen_aus(Bytes, std::string("probe") + Endungen[Art], Art, p.Felder, p.Sicht, Dezimalzeichen);
}

std::string Bytes(Satzart Art, const Satzprobe& p, char Dezimalzeichen) {
    return Satz_als_Bytes(Art, p.Felder, p.Sicht, Dezimalzeichen);
}

std::optional<std::string> Fehler_beim_Lesen(const std::string& Bytes, Satzart Art, Satzprobe& p) {
    try {
        lies(Bytes, Art, p);
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return std::nullopt;
}

std::vector<std::string> zerlegt(const std::string& Bytes) {
    std::vector<std::string> Zeilen;
    for (std::size_t Stelle = 0; Stelle < Bytes.size();) {
        const auto Ende = Bytes.find("\r\n", Stelle);
        Zeilen.push_back(Bytes.substr(Stelle, Ende - Stelle));
        Stelle = Ende + 2;
    }
    return Zeilen;
}

std::string verbunden(const std::vector<std::string>& Zeilen) {
    std::string Bytes;
    for (const auto& Zeile : Zeilen) Bytes += Zeile + "\r\n";
    return Bytes;
}

std::string mit_Zeile(const std::string& Bytes, std::size_t Nummer, const std::string& Zeile) {
    auto Zeilen = zerlegt(Bytes);
    Zeilen.at(Nummer - 1) = Zeile;
    return verbunden(Zeilen);
}

std::string vor_Zeile(const std::string& Bytes, std::size_t Nummer) {
    auto Zeilen = zerlegt(Bytes);
    Zeilen.resize(Nummer - 1);
    return verbunden(Zeilen);
}

}  // namespace varnok::probe
