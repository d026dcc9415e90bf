#include "records/dateien.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "records/ersatzdatei.h"

namespace varnok {
namespace {

[[noreturn]] void melde(const std::string& Vorgang, const std::string& Pfad, const std::string& Grund) {
    throw Laufzeitfehler("Cannot " + Vorgang + " the file \"" + Pfad + "\": " + Grund, {letzter_Teil(Pfad)});
}

// Opened without waiting for whom a pipe may have at its other end.
int oeffne_zum_Lesen(const std::string& Pfad) { return open(Pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }

// Why an open file is not read, empty if it is.
std::string Hindernis(int Datei, Quelle q) {
    struct stat Angaben = {};
    if (fstat(Datei, &Angaben) != 0) return std::generic_category().message(errno);
    if (S_ISDIR(Angaben.st_mode)) return "it is a folder";
    if (S_ISREG(Angaben.st_mode)) return {};
    if (q == Quelle::Datei) return "it is no plain file";
    fcntl(Datei, F_SETFL, fcntl(Datei, F_GETFL) & ~O_NONBLOCK);
    return {};
}

std::string lies_offene(int Datei, const std::string& Pfad) {
    std::string Inhalt;
    std::array<char, 65536> Puffer;
    for (;;) {
        const ssize_t Anzahl = read(Datei, Puffer.data(), Puffer.size());
        if (Anzahl < 0 && errno == EINTR) continue;
        if (Anzahl < 0) melde("read", Pfad, std::generic_category().message(errno));
        if (Anzahl == 0) return Inhalt;
        Inhalt.append(Puffer.data(), static_cast<std::size_t>(Anzahl));
        if (Inhalt.size() > Hoechstgroesse_Datei) melde("read", Pfad, "it is larger than 16 MB and no input of this program");
    }
}

// Closes an open file, whatever becomes of its reading.
struct Schliesser {
    explicit Schliesser(int Datei) : Nummer(Datei) {}
    ~Schliesser() {
        if (Nummer >= 0) close(Nummer);
    }
    Schliesser(const Schliesser&) = delete;
    Schliesser& operator=(const Schliesser&) = delete;
    const int Nummer;
};

}  // namespace

Dateischreiber::Dateischreiber(const std::string& Pfad, const Schreibort& Ort)
    : Pfad_(Pfad),
      Datei_(std::make_unique<Ersatzdatei>(Schreibziel(Pfad, Ort), Ort.Weise == Schreibweise::Ausgabe && ist_Geraet(Pfad))) {
    if (!Datei_->oeffne()) melde("write", Pfad_, Datei_->Grund());
}

Dateischreiber::~Dateischreiber() = default;

void Dateischreiber::schreibe(std::string_view Stueck) {
    if (!Datei_->schreibe(Stueck)) melde("write", Pfad_, Datei_->Grund());
}

void Dateischreiber::beende() {
    if (!Datei_->beende()) melde("write", Pfad_, Datei_->Grund());
}

std::string lies_Datei(const std::string& Pfad, Quelle q) {
    const Schliesser Datei(oeffne_zum_Lesen(Pfad));
    if (Datei.Nummer < 0) melde("read", Pfad, std::generic_category().message(errno));
    if (const std::string Grund = Hindernis(Datei.Nummer, q); !Grund.empty()) melde("read", Pfad, Grund);
    return lies_offene(Datei.Nummer, Pfad);
}

std::optional<std::string> lies_Datei_falls_moeglich(const std::string& Pfad) {
    const Schliesser Datei(oeffne_zum_Lesen(Pfad));
    if (Datei.Nummer < 0 || !Hindernis(Datei.Nummer, Quelle::Datei).empty()) return std::nullopt;
    return lies_offene(Datei.Nummer, Pfad);
}

void schreibe_Datei(const std::string& Pfad, const std::string& Inhalt, const Schreibort& Ort) {
    Dateischreiber Datei(Pfad, Ort);
    Datei.schreibe(Inhalt);
    Datei.beende();
}

void kopiere_Datei(const std::string& von, const std::string& nach) { schreibe_Datei(nach, lies_Datei(von), als_Datei); }

void benenne_Datei_um(const std::string& von, const std::string& nach) {
    std::error_code Fehler;
    std::filesystem::rename(als_Pfad(von), als_Pfad(nach), Fehler);
    if (Fehler) melde("rename", von, "to \"" + nach + "\": " + Fehler.message());
}

void loesche_Datei(const std::string& Pfad) {
    std::error_code Fehler;
    if (!std::filesystem::remove(als_Pfad(Pfad), Fehler))
        melde("delete", Pfad, Fehler ? Fehler.message() : "there is no such file");
}

}  // namespace varnok
