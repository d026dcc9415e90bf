#include "records/dateien.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include "base/laufzeitfehler.h"

namespace varnok {
namespace {

[[noreturn]] void melde(const std::string& Vorgang, const std::string& Pfad, const std::string& Grund) {
    throw Laufzeitfehler("Cannot " + Vorgang + " the file \"" + Pfad + "\": " + Grund, {Pfad.substr(Pfad.rfind('/') + 1)});
}

std::filesystem::path als_Pfad(const std::string& Utf8) { return {std::u8string(Utf8.begin(), Utf8.end())}; }

QString als_QString(const std::string& Utf8) { return QString::fromStdString(Utf8); }

// Why a file cannot be opened, empty if it is open now.
std::string oeffne(QFile& Datei) {
    if (QFileInfo(Datei.fileName()).isDir()) return "it is a folder";
    if (!Datei.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return Datei.errorString().toStdString();
    return {};
}

std::string lies_offene(QFile& Datei, const std::string& Pfad) {
    std::string Inhalt;
    std::array<char, 65536> Puffer;
    for (;;) {
        const qint64 Anzahl = Datei.read(Puffer.data(), static_cast<qint64>(Puffer.size()));
        if (Anzahl <= 0) break;
        Inhalt.append(Puffer.data(), static_cast<std::size_t>(Anzahl));
        if (Inhalt.size() > Hoechstgroesse_Datei) melde("read", Pfad, "it is larger than 16 MB and no input of this program");
    }
    if (Datei.error() != QFileDevice::NoError) melde("read", Pfad, Datei.errorString().toStdString());
    return Inhalt;
}

#ifndef _WIN32
// The content of a file where nothing stands in the way, else nothing: a batch reads tens of thousands of small ones.
std::optional<std::string> lies_ohne_Umstand(const std::string& Pfad) {
    const int Datei = open(Pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (Datei < 0) return std::nullopt;
    std::string Inhalt;
    std::array<char, 65536> Puffer;
    ssize_t Anzahl = 0;
    while ((Anzahl = read(Datei, Puffer.data(), Puffer.size())) > 0 && Inhalt.size() <= Hoechstgroesse_Datei) {
        Inhalt.append(Puffer.data(), static_cast<std::size_t>(Anzahl));
    }
    close(Datei);
    if (Anzahl != 0 || Inhalt.size() > Hoechstgroesse_Datei) return std::nullopt;
    return Inhalt;
}
#else
std::optional<std::string> lies_ohne_Umstand(const std::string&) { return std::nullopt; }
#endif

}  // namespace

// Where the bytes go: a file beside the target, or the target itself.
class Dateischreiber::Geraet {
public:
    explicit Geraet(const std::string& Pfad) {
        const QFileInfo Ziel(als_QString(Pfad));
        if (Ziel.isDir()) melde("write", Pfad, "it is a folder");
        // A device or a pipe has no old content to keep and must not be replaced by a file.
        if (Ziel.exists() && !Ziel.isFile()) {
            Datei_ = std::make_unique<QFile>(als_QString(Pfad));
        } else {
            auto Neue = std::make_unique<QSaveFile>(als_QString(Pfad));
            neue_ = Neue.get();
            Datei_ = std::move(Neue);
        }
    }

    std::string Grund() const { return Datei_->errorString().toStdString(); }
    bool oeffne() { return Datei_->open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

    // Whether all bytes went out. A disk that becomes full takes a part of them; the reason comes with the rest.
    bool schreibe(std::string_view Stueck) {
        while (!Stueck.empty()) {
            const qint64 Schritt = Datei_->write(Stueck.data(), static_cast<qint64>(Stueck.size()));
            if (Schritt <= 0) return false;
            Stueck.remove_prefix(static_cast<std::size_t>(Schritt));
        }
        return true;
    }

    bool beende() {
        if (!Datei_->flush()) return false;
        if (neue_) return neue_->commit();
        Datei_->close();
        return Datei_->error() == QFileDevice::NoError;
    }

private:
    std::unique_ptr<QFileDevice> Datei_;
    QSaveFile* neue_ = nullptr;  // the same, where it takes the place of a file
};

Dateischreiber::Dateischreiber(const std::string& Pfad) : Pfad_(Pfad), Geraet_(std::make_unique<Geraet>(Pfad)) {
    if (!Geraet_->oeffne()) melde("write", Pfad_, Geraet_->Grund());
}

Dateischreiber::~Dateischreiber() = default;

void Dateischreiber::schreibe(std::string_view Stueck) {
    if (!Geraet_->schreibe(Stueck)) melde("write", Pfad_, Geraet_->Grund());
}

void Dateischreiber::beende() {
    if (!Geraet_->beende()) melde("write", Pfad_, Geraet_->Grund());
}

std::string lies_Datei(const std::string& Pfad) {
    if (auto Inhalt = lies_ohne_Umstand(Pfad)) return std::move(*Inhalt);
    QFile Datei(als_QString(Pfad));
    const std::string Hindernis = oeffne(Datei);
    if (!Hindernis.empty()) melde("read", Pfad, Hindernis);
    return lies_offene(Datei, Pfad);
}

std::optional<std::string> lies_Datei_falls_moeglich(const std::string& Pfad) {
    if (auto Inhalt = lies_ohne_Umstand(Pfad)) return Inhalt;
    QFile Datei(als_QString(Pfad));
    if (!oeffne(Datei).empty()) return std::nullopt;
    return lies_offene(Datei, Pfad);
}

void schreibe_Datei(const std::string& Pfad, const std::string& Inhalt) {
    Dateischreiber Datei(Pfad);
    Datei.schreibe(Inhalt);
    Datei.beende();
}

void kopiere_Datei(const std::string& von, const std::string& nach) { schreibe_Datei(nach, lies_Datei(von)); }

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
