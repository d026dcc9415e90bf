#include "session/programm/projektwahl.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include "base/dateipfad.h"
#include "base/text.h"
#include "records/projektordner.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Name filters find files and folders without regard to case.
bool haelt_Projekt(const QDir& Ordner) {
    return !Ordner.entryList({u"VARNOK.ini"_s}, QDir::Files).isEmpty() || !Ordner.entryList({u"input"_s}, QDir::Dirs).isEmpty();
}

bool haelt_Simulation(const QDir& Ordner) {
    const QStringList Eingaben = Ordner.entryList({u"input"_s}, QDir::Dirs);
    return !Eingaben.isEmpty() && !QDir(Ordner.filePath(Eingaben.front())).entryList({u"*.vnk"_s}, QDir::Files).isEmpty();
}

// The start simulation is left the newest of all summary files: the newest is the one that the program opens.
void fuelle(const QDir& Ziel, const QDir& Quelle) {
    Ziel.mkpath(u"input"_s);
    Ziel.mkpath(u"output"_s);
    const QDir von(Quelle.filePath(u"input"_s));
    for (const QFileInfo& Datei : von.entryInfoList(QDir::Files)) {
        const QString neu = Ziel.filePath(u"input/"_s + Datei.fileName());
        if (!QFile::copy(Datei.filePath(), neu)) continue;
        QFile Kopie(neu);
        // Installed files may be read-only, the user's are not.
        Kopie.setPermissions(Kopie.permissions() | QFile::WriteOwner);
        if (Datei.fileName() == u"Programcheck.vnk"_s || !Kopie.open(QIODevice::ReadWrite)) continue;
        Kopie.setFileTime(Datei.lastModified().addDays(-1), QFileDevice::FileModificationTime);
    }
}

QString in_Qt(const std::string& Text) { return QString::fromStdString(Text); }

Projektwahl ohne_Argument(const Projektorte& Orte) {
    for (const std::string& Ordner : {Orte.aktueller_Ordner, Orte.Benutzerdaten}) {
        if (!Ordner.empty() && haelt_Projekt(QDir(in_Qt(Ordner)))) return {Ordner, {}, {}};
    }
    const QDir Ziel(QDir(in_Qt(Orte.Dokumente)).filePath(u"VARNOK"_s));
    if (!haelt_Simulation(Ziel)) fuelle(Ziel, QDir(in_Qt(Orte.installierte_Daten)));
    return {Ziel.path().toStdString(), {}, {}};
}

Projektwahl mit_Simulation(const QFileInfo& Datei) {
    QDir Ordner = Datei.absoluteDir();
    if (!gleich_ohne_Gross_Klein(Ordner.dirName().toStdString(), "input")) {
        return {{}, {}, "a simulation is opened from the folder \"input\" of its project, which this file is not in"};
    }
    const std::string Name = ohne_Endung(Datei.fileName().toStdString());
    Ordner.cdUp();
    return {Ordner.path().toStdString(), Name, {}};
}

Projektwahl mit_Argument(const std::string& Argument) {
    const QFileInfo Ziel(in_Qt(Argument));
    if (!Ziel.exists()) return {{}, {}, "there is no such file or folder"};
    if (Ziel.isDir()) {
        const QDir Ordner(Ziel.absoluteFilePath());
        if (haelt_Projekt(Ordner)) return {Ordner.path().toStdString(), {}, {}};
        return {{}, {}, "this folder is no project: it holds no folder \"input\""};
    }
    if (Ziel.suffix().compare(u"vnk", Qt::CaseInsensitive) == 0) return mit_Simulation(Ziel);
    return {{}, {}, "this is neither a project folder nor a simulation (*.vnk)"};
}

}  // namespace

Projektwahl waehle_Projekt(const std::string& Argument, const Projektorte& Orte) {
    if (Argument.empty()) return ohne_Argument(Orte);
    Projektwahl Wahl = mit_Argument(Argument);
    if (!Wahl.Einwand.empty()) Wahl.Einwand = "\"" + Argument + "\" cannot be opened: " + Wahl.Einwand;
    return Wahl;
}

std::string installierte_Daten(const std::string& Programmdatei) {
    const QFileInfo Programm(in_Qt(Programmdatei));
    const QString Datei = Programm.canonicalFilePath().isEmpty() ? Programm.absoluteFilePath() : Programm.canonicalFilePath();
    return QDir::cleanPath(QFileInfo(Datei).path() + u"/../share/varnok"_s).toStdString();
}

}  // namespace varnok
