// Files that are no records, or no longer: nothing may crash, hang or leave half a change behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Satz_Schaden : public ::testing::TestWithParam<Satzart> {
protected:
    // Reads the bytes; whatever comes of it, the contract of reading must hold.
    static void pruefe(const std::string& Schaden, Satzart Art) {
        Satzprobe p = volle_Probe(4);
        const Satzprobe vorher = p;
        try {
            const Lesebefund b = lies(Schaden, Art, p);
            if (b.Ausgang == Leseausgang::abgebrochen) {
                EXPECT_GT(b.Ort.Zeile, 0);
                EXPECT_FALSE(b.Grund.empty());
                EXPECT_EQ(p, vorher);
            } else {
                EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
                EXPECT_EQ(p.Felder.Applikationsschema.size(), static_cast<std::size_t>(p.Felder.Anzahl()));
                EXPECT_GE(p.Felder.Studienzahl(), 1);
                EXPECT_LE(p.Felder.Studienzahl(), max_Studien);
            }
        } catch (const Laufzeitfehler& f) {
            EXPECT_EQ(f.Ort().Datei, "probe.che");
            EXPECT_GT(f.Ort().Zeile, 0);
            EXPECT_THAT(f.what(), StartsWith("File probe.che, line " + std::to_string(f.Ort().Zeile) + ": "));
            EXPECT_EQ(p, vorher);
        }
    }
};

TEST_P(Satz_Schaden, cut_off_at_every_byte) {
    const std::string Satz = Bytes(GetParam(), volle_Probe(2));
    for (std::size_t n = 0; n <= Satz.size(); ++n) pruefe(Satz.substr(0, n), GetParam());
}

TEST_P(Satz_Schaden, every_line_left_out_doubled_or_emptied) {
    const std::string Satz = Bytes(GetParam(), volle_Probe(2));
    const auto Zeilen = zerlegt(Satz);
    for (std::size_t n = 0; n < Zeilen.size(); ++n) {
        auto fehlt = Zeilen;
        fehlt.erase(fehlt.begin() + static_cast<std::ptrdiff_t>(n));
        pruefe(verbunden(fehlt), GetParam());
        auto doppelt = Zeilen;
        doppelt.insert(doppelt.begin() + static_cast<std::ptrdiff_t>(n), Zeilen[n]);
        pruefe(verbunden(doppelt), GetParam());
        pruefe(mit_Zeile(Satz, n + 1, ""), GetParam());
    }
}

TEST_P(Satz_Schaden, every_value_replaced) {
    const auto Zeilen = zerlegt(Bytes(GetParam(), volle_Probe(2)));
    for (const std::string Ersatz :
         {"text", "1E308", "-1", "", "1E400", "-1E-400", "99999999999999999999", "nan", "1,5", "0x10", "\x1A", "------", "2.5"}) {
        for (std::size_t n = 0; n < Zeilen.size(); ++n) {
            const std::string& Zeile = Zeilen[n];
            for (auto Tab = Zeile.find('\t'); Tab != std::string::npos; Tab = Zeile.find('\t', Tab + 1)) {
                auto geaendert = Zeilen;
                const auto Ende = Zeile.find('\t', Tab + 1);
                geaendert[n] = Zeile.substr(0, Tab + 1) + Ersatz + (Ende == std::string::npos ? "" : Zeile.substr(Ende));
                pruefe(verbunden(geaendert), GetParam());
            }
        }
    }
}

TEST_P(Satz_Schaden, text_in_place_of_a_number_is_0_with_a_note_or_refused) {
    const auto Zeilen = zerlegt(Bytes(GetParam(), volle_Probe(2)));
    for (std::size_t n = 0; n < Zeilen.size(); ++n) {
        const auto Tab = Zeilen[n].find('\t');
        const bool ist_Text = Zeilen[n].starts_with("Study ") || Zeilen[n].starts_with("Parent") ||
                              Zeilen[n].starts_with("Metabolite") || Zeilen[n].starts_with("Soil sc") ||
                              Zeilen[n].starts_with("Climatic") || Zeilen[n].starts_with("Date");
        if (Tab == std::string::npos || ist_Text) continue;
        auto geaendert = Zeilen;
        geaendert[n].replace(Tab + 1, geaendert[n].find('\t', Tab + 1) - Tab - 1, "abc");
        Satzprobe p;
        if (Fehler_beim_Lesen(verbunden(geaendert), GetParam(), p)) continue;
        p = {};
        const Lesebefund b = lies(verbunden(geaendert), GetParam(), p);
        if (b.Ausgang == Leseausgang::abgebrochen) continue;
        ASSERT_GE(b.Bemerkungen.size(), 1u) << geaendert[n];
        EXPECT_EQ(b.Bemerkungen[0].Zeile, static_cast<int>(n) + 1);
        EXPECT_THAT(b.Bemerkungen[0].Meldung, HasSubstr("this is no number"));
        EXPECT_EQ(b.Bemerkungen[0].Text, "abc");
        EXPECT_EQ(b.Bemerkungen[0].Wert, 0);
    }
}

TEST_P(Satz_Schaden, every_byte_changed) {
    const std::string Satz = Bytes(GetParam(), volle_Probe(1));
    for (std::size_t n = 0; n < Satz.size(); ++n) {
        for (const char z : {'\0', '\t', '\r', '\xFF', '9', '-'}) {
            std::string geaendert = Satz;
            geaendert[n] = z;
            pruefe(geaendert, GetParam());
        }
    }
}

TEST_P(Satz_Schaden, other_kinds_of_file) {
    std::string binaer;
    for (int i = 0; i < 70000; ++i) binaer += static_cast<char>((i * 7919) >> 3);
    pruefe(binaer, GetParam());
    pruefe("", GetParam());
    pruefe("\r\n", GetParam());
    pruefe(std::string(100000, '\n'), GetParam());
    pruefe(std::string(100000, '\t'), GetParam());
    for (const auto Art : Eingabearten) pruefe(Bytes(Art, volle_Probe(3)), GetParam());
}

INSTANTIATE_TEST_SUITE_P(alle, Satz_Schaden, ::testing::Values(Wirkstoff, Applikation, Szenario));

TEST(Satz_Groesse, line_of_16_megabytes_is_read_and_cut) {
    Satzprobe p;
    const std::string Satz = Bytes(Szenario, volle_Probe());
    const std::string lang = mit_Zeile(Satz, 2, "Soil scenario:\t" + std::string(Hoechstgroesse_Datei - Satz.size(), 'x'));
    EXPECT_EQ(lies(lang, Szenario, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Bodenszenario, std::string(255, 'x'));
    EXPECT_EQ(p.Felder.Parameter.Bodendichte, 1.5);
}

TEST(Satz_Groesse, larger_file_is_refused_with_its_name) {
    const Probeordner o;
    o.lege_an("huge.sce");
    std::filesystem::resize_file(o.Eingabedatei("huge.sce"), 100u << 20);
    Satzprobe p;
    try {
        Satz_lesen(o.Ordner(), "huge", Szenario, p.Felder, p.Sicht);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_THAT(f.what(), HasSubstr("huge.sce"));
        EXPECT_THAT(f.what(), HasSubstr("16 MB"));
        EXPECT_EQ(f.Ort().Datei, "huge.sce");
        EXPECT_EQ(f.Ort().Zeile, 0);
    }
    EXPECT_EQ(p, Satzprobe{});
    EXPECT_TRUE(Fehler_beim_Lesen(std::string(Hoechstgroesse_Datei + 1, ' '), Szenario, p));
}

TEST(Satz_lesen, missing_record_is_told_and_changes_nothing) {
    const Probeordner o;
    Satzprobe p = volle_Probe();
    for (const auto Art : {Wirkstoff, Applikation, Szenario, Vorlage_Wirkstoff, Vorlage_Applikation, Vorlage_Szenario}) {
        for (const char* Name : {"none", "", ".", "..", "../input/none", "a/b", "a\\b", "a\nb"}) {
            EXPECT_EQ(Satz_lesen(o.Ordner(), Name, Art, p.Felder, p.Sicht).Ausgang, Leseausgang::fehlt) << Name;
        }
    }
    EXPECT_EQ(p, volle_Probe());
}

TEST(Satz_lesen, record_outside_the_folder_is_never_reached) {
    const Probeordner o;
    schreibe(o.Pfad() + "/outside.sce", Bytes(Szenario, volle_Probe()));
    Satzprobe p;
    EXPECT_EQ(Satz_lesen(o.Ordner(), "../outside", Szenario, p.Felder, p.Sicht).Ausgang, Leseausgang::fehlt);
    EXPECT_EQ(Satz_lesen(o.Ordner(), o.Pfad() + "/outside", Szenario, p.Felder, p.Sicht).Ausgang, Leseausgang::fehlt);
}

TEST(Satz_lesen, folder_in_the_place_of_a_record_is_told) {
    const Probeordner o;
    std::filesystem::create_directory(o.Eingabedatei("x.sce"));
    Satzprobe p;
    try {
        Satz_lesen(o.Ordner(), "x", Szenario, p.Felder, p.Sicht);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_THAT(f.what(), HasSubstr("x.sce\": it is a folder"));
        EXPECT_EQ(f.Ort().Datei, "x.sce");
    }
    EXPECT_THROW(Satz_schreiben(o.Ordner(), "x", Szenario, p.Felder, p.Sicht), Laufzeitfehler);
    EXPECT_TRUE(std::filesystem::is_directory(o.Eingabedatei("x.sce")));
}

TEST(Satz_lesen, pipe_of_a_record_s_name_does_not_stop_the_program) {
    const Probeordner o;
    ASSERT_EQ(mkfifo(o.Eingabedatei("x.sce").c_str(), 0600), 0);
    Satzprobe p;
    EXPECT_EQ(Satz_lesen(o.Ordner(), "x", Szenario, p.Felder, p.Sicht).Ausgang, Leseausgang::fehlt);
}

TEST(Satz_lesen, simulation_is_no_record) {
    const Probeordner o;
    Satzprobe p;
    EXPECT_THROW(Satz_lesen(o.Ordner(), "x", Simulation, p.Felder, p.Sicht), Laufzeitfehler);
    EXPECT_THROW(lies("", Simulation, p), Laufzeitfehler);
}

TEST(Satz_schreiben_unter_Namen, name_that_no_file_can_have_is_refused_and_nothing_is_written) {
    const Probeordner o;
    const Satzprobe p = volle_Probe();
    for (const std::string Name : {"", ".", "..", "../x", "a/b", "a\\b", "a\nb", "a\tb", "\x7F", "/etc/x"}) {
        EXPECT_THROW(Satz_schreiben(o.Ordner(), Name, Szenario, p.Felder, p.Sicht), Laufzeitfehler) << Name;
    }
    EXPECT_THROW(Satz_schreiben(o.Ordner(), std::string(251, 'x'), Szenario, p.Felder, p.Sicht), Laufzeitfehler);
    EXPECT_TRUE(o.Dateien().empty());
    EXPECT_FALSE(std::filesystem::exists(o.Pfad() + "/x.sce"));
}

TEST(Satz_schreiben_unter_Namen, longest_name_is_written_and_read) {
    const Probeordner o;
    const Satzprobe p = volle_Probe();
    const std::string Name(240, 'x');
    Satz_schreiben(o.Ordner(), Name, Szenario, p.Felder, p.Sicht);
    EXPECT_EQ(o.Ordner().Namen(".sce"), std::vector<std::string>{Name});
    EXPECT_EQ(Einwand_gegen_Namen(Name), "");
    EXPECT_NE(Einwand_gegen_Namen(Name + "x"), "");
}

}  // namespace
}  // namespace varnok
