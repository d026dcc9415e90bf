// Thousands of actions in any order: what is on display belongs to what is entered, nothing is lost, everything can be undone.

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "session/kern/sitzungsgang.h"

namespace varnok {
namespace {

using namespace gang;

constexpr std::uint64_t gewohnte_Saat = 13;

std::uint64_t aus_der_Umgebung(const char* Name, std::uint64_t sonst) {
    const char* Text = std::getenv(Name);
    return Text == nullptr || *Text == 0 ? sonst : std::strtoull(Text, nullptr, 10);
}

std::string Kurzbericht(const std::vector<Aktion>& Liste, const std::string& Regel) {
    const std::vector<Aktion> kurze = kuerze(Liste, Regel, static_cast<double>(aus_der_Umgebung("VARNOK_GANG_KUERZEN", 40)));
    const Gangergebnis e = gehe(kurze);
    std::string Text;
    const std::size_t viele = 60;
    for (std::size_t i = e.Protokoll.size() > viele ? e.Protokoll.size() - viele : 0; i < e.Protokoll.size(); ++i) {
        Text += "    " + e.Protokoll[i] + "\n";
    }
    return Text + "    => " + (e.Fund ? e.Fund->Regel + ": " + e.Fund->Text : "not seen again");
}

void berichte(const char* Was, const Zaehler& Gezaehltes) {
    for (const auto& [Name, n] : Gezaehltes) std::cout << "    " << n << " x " << Was << ": " << Name << "\n";
}

const std::vector<std::string> nichts;

const std::vector<Ausnahme> Befehle_ohne_Gang = {};

std::vector<std::string> alle_fremden_Taten() {
    std::vector<std::string> Namen;
    for (const char* Tat : {"changed", "deleted", "destroyed", "new", "renamed"}) {
        for (const char* Endung : Dateiarten) Namen.push_back(Tat + std::string(" ") + Endung);
    }
    return Namen;
}

TEST(Sitzungsgang, NichtsLuegt) {
    const auto Saat = aus_der_Umgebung("VARNOK_GANG_SAAT", gewohnte_Saat);
    const auto Anzahl = static_cast<int>(aus_der_Umgebung("VARNOK_GANG_SCHRITTE", 3000));
    std::vector<Aktion> Liste = wuerfle(Saat, Anzahl);
    const Gangergebnis e = gehe(Liste);
    if (e.Fund) {
        Liste.resize(e.bei + 1);
        FAIL() << "seed " << Saat << ", action " << e.bei << ": " << e.Fund->Regel << ": " << e.Fund->Text << "\n"
               << Kurzbericht(Liste, e.Fund->Regel);
    }
    std::cout << "seed " << Saat << ", " << Liste.size() << " actions, " << e.verglichen << " comparisons with a run of its own, "
              << e.Schritte << " steps undone and redone\n";
    berichte("command", e.Befehle);
    berichte("question", e.Fragen);
    berichte("cover", e.Abdeckungen);
    berichte("another program", e.Fremdes);
    if (Anzahl < 3000 || Saat != gewohnte_Saat) return;
    // A part is left out by its name and a reason alone.
    constexpr int oft = 20;
    EXPECT_EQ(Fehlendes(Befehlsnamen(alle_Befehle), e.Befehle, Befehle_ohne_Gang, oft), nichts) << "commands done too seldom";
    EXPECT_EQ(Fehlendes(alle_Fragen(), e.Fragen, Fragen_ohne_Gang(), oft), nichts) << "questions answered too seldom";
    EXPECT_EQ(Fehlendes(alle_Abdeckungen(), e.Abdeckungen, {}, oft), nichts) << "covers shown too seldom";
    EXPECT_EQ(Fehlendes(alle_fremden_Taten(), e.Fremdes, {}, oft), nichts) << "changes of files made too seldom";
}

}  // namespace
}  // namespace varnok
