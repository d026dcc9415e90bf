#include "window/programm/programmordner.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Name filters find files and folders without regard to case.
bool haelt_Projekt(const QDir& Ordner) {
    return !Ordner.entryList({u"VARNOK.ini"_s}, QDir::Files).isEmpty() || !Ordner.entryList({u"input"_s}, QDir::Dirs).isEmpty();
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

}  // namespace

QString Programmordner(const QString& aktueller_Ordner, const QString& Datenordner, const QString& installierte_Daten) {
    if (haelt_Projekt(QDir(aktueller_Ordner))) return aktueller_Ordner;
    const QDir Ziel(Datenordner);
    if (!haelt_Projekt(Ziel)) fuelle(Ziel, QDir(installierte_Daten));
    return Datenordner;
}

}  // namespace varnok
