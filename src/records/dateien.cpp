#include "records/dateien.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <array>
#include <filesystem>
#include <system_error>

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

// Whether all bytes went out. A disk that becomes full takes a part of them; the reason comes with the rest.
bool schreibe_alles(QFileDevice& Datei, const std::string& Inhalt) {
    const auto Anzahl = static_cast<qint64>(Inhalt.size());
    for (qint64 fertig = 0; fertig < Anzahl;) {
        const qint64 Schritt = Datei.write(Inhalt.data() + fertig, Anzahl - fertig);
        if (Schritt <= 0) return false;
        fertig += Schritt;
    }
    return Datei.flush();
}

// A device or a pipe has no old content to keep and must not be replaced by a file.
void schreibe_unmittelbar(const std::string& Pfad, const std::string& Inhalt) {
    QFile Datei(als_QString(Pfad));
    if (!Datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !schreibe_alles(Datei, Inhalt)) {
        melde("write", Pfad, Datei.errorString().toStdString());
    }
    Datei.close();
    if (Datei.error() != QFileDevice::NoError) melde("write", Pfad, Datei.errorString().toStdString());
}

void ersetze(const std::string& Pfad, const std::string& Inhalt) {
    QSaveFile Datei(als_QString(Pfad));
    if (!Datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !schreibe_alles(Datei, Inhalt) || !Datei.commit()) {
        melde("write", Pfad, Datei.errorString().toStdString());
    }
}

}  // namespace

std::string lies_Datei(const std::string& Pfad) {
    QFile Datei(als_QString(Pfad));
    const std::string Hindernis = oeffne(Datei);
    if (!Hindernis.empty()) melde("read", Pfad, Hindernis);
    return lies_offene(Datei, Pfad);
}

std::optional<std::string> lies_Datei_falls_moeglich(const std::string& Pfad) {
    QFile Datei(als_QString(Pfad));
    if (!oeffne(Datei).empty()) return std::nullopt;
    return lies_offene(Datei, Pfad);
}

void schreibe_Datei(const std::string& Pfad, const std::string& Inhalt) {
    const QFileInfo Ziel(als_QString(Pfad));
    if (Ziel.isDir()) melde("write", Pfad, "it is a folder");
    if (Ziel.exists() && !Ziel.isFile()) {
        schreibe_unmittelbar(Pfad, Inhalt);
    } else {
        ersetze(Pfad, Inhalt);
    }
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
