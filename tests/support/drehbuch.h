#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "base/schnittstellen.h"

namespace varnok {

// Answers the program's questions from a list written beforehand. A question that is not the next one of the
// list fails the test, an answer left over fails it too.
class Drehbuch : public Rueckfrage {
public:
    Drehbuch& erwarte(std::string Titel, std::string Text, Knopf Antwort = Knopf::OK) {
        Auftritte_.push_back({std::move(Titel), std::move(Text), Antwort});
        return *this;
    }

    // Only the start of the text is known beforehand.
    Drehbuch& erwarte_Anfang(std::string Titel, std::string Anfang, Knopf Antwort = Knopf::OK) {
        Auftritte_.push_back({std::move(Titel), std::move(Anfang), Antwort, true});
        return *this;
    }

    Knopf frage(const Frage& f) override {
        if (Auftritte_.empty()) {
            ADD_FAILURE() << "unexpected question: " << f.Titel << ": " << f.Text;
            return f.Knoepfe.back();
        }
        const Auftritt a = Auftritte_.front();
        Auftritte_.pop_front();
        EXPECT_EQ(a.Titel, f.Titel);
        EXPECT_EQ(a.Text, a.nur_Anfang ? f.Text.substr(0, a.Text.size()) : f.Text) << f.Text;
        return a.Antwort;
    }

    ~Drehbuch() override { EXPECT_TRUE(Auftritte_.empty()) << "question never asked: " << Auftritte_.front().Text; }

private:
    struct Auftritt {
        std::string Titel;
        std::string Text;
        Knopf Antwort;
        bool nur_Anfang = false;
    };
    std::deque<Auftritt> Auftritte_;
};

}  // namespace varnok
