#include "batch/csv_leser.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "batch/aufruf.h"

namespace varnok::batch {
namespace {

constexpr int Ende = std::char_traits<char>::eof();

std::string Hindernis(const std::string& Pfad, int Fehler) {
    std::error_code unwichtig;
    if (std::filesystem::is_directory(als_Pfad(Pfad), unwichtig)) return "it is a folder";
    return std::generic_category().message(Fehler);
}

// A cell in work.
struct Zelle {
    std::string Text;
    bool in_Zeichen = false;  // it stood in quotation marks

    void lege_ab(std::vector<std::string>& Zellen) {
        Zellen.emplace_back(in_Zeichen ? std::string_view(Text) : ohne_Randblanks(Text));
        Text.clear();
        in_Zeichen = false;
    }
};

}  // namespace

CSV_Leser::CSV_Leser(std::string Bezeichnung, const std::string& Pfad) : Bezeichnung_(std::move(Bezeichnung)) {
    errno = 0;
    Strom_.open(als_Pfad(Pfad), std::ios::binary);
    if (Strom_.is_open()) Strom_.peek();
    if (!Strom_.is_open() || Strom_.bad()) throw Aufruffehler(Bezeichnung_ + ": cannot be read: " + Hindernis(Pfad, errno));
    beginne_neu();
}

void CSV_Leser::beginne_neu() {
    Strom_.clear();
    if (!Strom_.seekg(0)) throw Aufruffehler(Bezeichnung_ + ": this is read more than once, so it has to be a file");
    Zeile_ = 0;
    naechste_Zeile_ = 1;
    for (const int Zeichen : {0xEF, 0xBB, 0xBF}) {
        if (Strom_.peek() == Zeichen) Strom_.get();
    }
    Strom_.clear();
}

int CSV_Leser::naechstes() { return Strom_.get(); }

bool CSV_Leser::lies(std::vector<std::string>& Zellen) {
    while (lies_Zeile(Zellen)) {
        if (Zellen.size() > 1 || !Zellen.front().empty()) return true;
    }
    return false;
}

bool CSV_Leser::lies_Zeile(std::vector<std::string>& Zellen) {
    Zellen.clear();
    Zelle z;
    bool offen = false;  // inside quotation marks
    Zeile_ = naechste_Zeile_;
    for (;;) {
        const int Zeichen = naechstes();
        if (Zeichen == Ende) {
            if (offen) throw Aufruffehler(Zeilenangabe(Bezeichnung_, Zeile_) + ": a quotation mark has no end");
            if (Zellen.empty() && z.Text.empty()) return false;
            z.lege_ab(Zellen);
            return true;
        }
        if (Zeichen == '\n') ++naechste_Zeile_;
        if (offen && Zeichen == '"') {
            offen = Strom_.peek() == '"';
            if (offen) z.Text += static_cast<char>(naechstes());
        } else if (!offen && Zeichen == '"' && ohne_Randblanks(z.Text).empty()) {
            z.Text.clear();
            offen = z.in_Zeichen = true;
        } else if (!offen && Zeichen == ',') {
            z.lege_ab(Zellen);
        } else if (!offen && Zeichen == '\n') {
            z.lege_ab(Zellen);
            return true;
        } else if (offen || Zeichen != '\r') {
            z.Text += static_cast<char>(Zeichen);
        }
    }
}

}  // namespace varnok::batch
