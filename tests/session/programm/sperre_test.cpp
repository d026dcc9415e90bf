// A project folder that another window, or another machine, has open.

#include <fstream>

#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

class Sperrprobe : public Probesitzung {
protected:
    // As a program on another machine leaves it: process, program, machine.
    void sperre_von(const std::string& Rechner, std::chrono::hours Alter) const {
        std::ofstream(Wurzel_ / ".varnok.lock") << "4711\nvarnok\n" << Rechner << "\n\n\n";
        fs::last_write_time(Wurzel_ / ".varnok.lock", fs::file_time_type::clock::now() - Alter);
    }
};

TEST_F(Sperrprobe, of_another_machine_names_it_and_its_age_and_is_taken_over_on_request) {
    sperre_von("laboratory", std::chrono::hours(3));
    Fragen_.erwarte_Anfang("Project folder in use",
                           "VARNOK on the machine \"laboratory\" has had this project folder open for 3 hours.", Knopf::Ja);
    gestartet();
    EXPECT_FALSE(s_->Stand().Sperre->von_anderem_gehalten());
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::speichere>();  // no question any more
    EXPECT_EQ(Datei(".varnok.lock").find("laboratory"), std::string::npos);
}

TEST_F(Sperrprobe, that_is_not_taken_over_is_asked_about_before_each_save) {
    sperre_von("laboratory", std::chrono::hours(24 * 5));
    Fragen_.erwarte_Anfang("Project folder in use", "VARNOK on the machine \"laboratory\" has had", Knopf::Nein);
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte("Save changes?",
                    "VARNOK on the machine \"laboratory\" has had this project folder open for 5 days. "
                    "Do you want to save all the same?",
                    Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_TRUE(s_->Stand().verschieden(Wirkstoff));
    EXPECT_NE(Datei(".varnok.lock").find("laboratory"), std::string::npos) << "it stays that machine's";
}

TEST_F(Sperrprobe, whose_file_is_a_link_is_nobodys_and_the_target_stays) {
    const fs::path fremd = Wurzel_.string() + " mine";
    std::ofstream(fremd) << "mine";
    fs::create_symlink(fremd, Wurzel_ / ".varnok.lock");
    gestartet();
    s_->fuehre_aus<&Programmablauf::beende>();
    std::string Text;
    std::getline(std::ifstream(fremd), Text);
    EXPECT_EQ(Text, "mine");
    EXPECT_TRUE(fs::is_symlink(Wurzel_ / ".varnok.lock"));
    fs::remove(fremd);
}

TEST_F(Sperrprobe, whose_file_is_large_is_not_read) {
    std::ofstream(Wurzel_ / ".varnok.lock") << "";
    fs::resize_file(Wurzel_ / ".varnok.lock", std::size_t{1} << 33);  // takes no room
    gestartet();
    EXPECT_FALSE(s_->Stand().Sperre->von_anderem_gehalten());
}

}  // namespace
}  // namespace varnok
