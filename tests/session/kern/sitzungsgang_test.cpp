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

void erwarte_oft(const std::map<std::string, int>& Zaehler, const char* Was, int mindestens) {
    for (const auto& [Name, n] : Zaehler) EXPECT_GE(n, mindestens) << Was << " \"" << Name << "\"";
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
    std::map<std::string, int> Aktionen;
    for (const Aktion& a : Liste) ++Aktionen[Aktionsarten()[static_cast<std::size_t>(a.Art)].Name];
    std::cout << "seed " << Saat << ", " << Liste.size() << " actions, " << e.verglichen << " comparisons with a run of its own, "
              << e.Schritte << " steps undone and redone\n";
    for (const auto& [Name, n] : e.Fragen) std::cout << "    " << n << " x " << Name << "\n";
    for (const auto& [Name, n] : e.Abdeckungen) std::cout << "    " << n << " x cover: " << Name << "\n";
    if (Anzahl < 3000 || Saat != gewohnte_Saat) return;
    erwarte_oft(Aktionen, "action", 20);
    // A value that no record can hold is entered now and then, and asked about where it would be dropped.
    std::map<std::string, int> haeufige = e.Fragen;
    for (const char* Antwort : {"Yes", "No", "Esc"})
        EXPECT_GE(haeufige.extract("Runtime error: " + std::string(Antwort)).mapped(), 5);
    erwarte_oft(haeufige, "question", 20);
    erwarte_oft(e.Abdeckungen, "cover", 20);
    for (const char* Frage : {"Save changes?", "Delete record", "Delete study", "Replace existing record?", "Unsaved values"}) {
        for (const char* Antwort : {": Yes", ": No", ": Esc"})
            EXPECT_TRUE(e.Fragen.contains(std::string(Frage) + Antwort)) << Frage;
    }
    for (const char* Wort : {"Not valid", "Input changed", "Record deleted: choose or refresh", "a record that cannot be read"}) {
        EXPECT_TRUE(e.Abdeckungen.contains(Wort)) << Wort;
    }
}

}  // namespace
}  // namespace varnok
