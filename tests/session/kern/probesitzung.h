#pragma once

#include <filesystem>
#include <string>

#include "session/kern/probeeingabe.h"
#include "session/kern/sitzung.h"
#include "support/drehbuch.h"

namespace varnok {

// A project folder of its own with one simulation "Probe", and a session on it.
class Probesitzung : public ::testing::Test {
protected:
    Probesitzung();
    ~Probesitzung() override;

    // The session up to the working screen.
    Sitzung& gestartet();
    Sitzung& nur_geladen();

    void schreibe_Probe();
    // The three records of an input under one name.
    void schreibe_Saetze(const std::string& Name, const Eingabe& e) const;
    std::string Datei(const std::string& Name) const;
    bool gibt_es(const std::string& Name) const { return std::filesystem::exists(Wurzel_ / Name); }

    // What the user does in a field: enters it, types, leaves it.
    bool tippe(const std::string& Objektname, const std::string& Text);
    static int Feld(const std::string& Objektname);

    // Results as they are shown.
    const Ergebnis& Werte(int i_studie = 0) const;
    float Maximum(int i_studie = 0, int i_substanz = 0) const;

    std::filesystem::path Wurzel_;
    Drehbuch Fragen_;
    Eingabe Felder_ = Probeeingabe();  // of the record "Probe"
    Laufparameter& Parameter_ = Felder_.Parameter;
    Ansicht Sicht_;  // written with the records, too
    std::unique_ptr<Sitzung> s_;
};

// A record gets that name in its box; a box that is still open with a refused name is closed with Esc.
bool benenne_um(Sitzung& s, Satzart Art, const std::string& Name, bool Enter);

}  // namespace varnok
