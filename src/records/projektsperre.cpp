#include "records/projektsperre.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>
#include <algorithm>

namespace varnok {
namespace {

using namespace std::chrono_literals;

// A few lines; what is larger is not read.
constexpr qint64 Hoechstgroesse = 65536;

}  // namespace

Projektsperre::Projektsperre(const Projektordner& Ordner)
    : Datei_(std::make_unique<QLockFile>(QString::fromStdString(Ordner.Pfad() + "/.varnok.lock"))) {
    // A window may stay open for days: its file never counts as left over because of its age.
    Datei_->setStaleLockTime(0s);
    if (ist_brauchbar()) Datei_->tryLock(0s);
}

Projektsperre::~Projektsperre() = default;

// A link would be read where it leads to, a pipe would never be read to its end.
bool Projektsperre::ist_brauchbar() const {
    const QFileInfo Vorhandene(Datei_->fileName());
    if (Vorhandene.isSymLink()) return false;
    return !Vorhandene.exists() || (Vorhandene.isFile() && Vorhandene.size() <= Hoechstgroesse);
}

std::optional<Sperrinhaber> Projektsperre::anderer() {
    if (Datei_->isLocked() || !ist_brauchbar() || Datei_->tryLock(0s)) return std::nullopt;
    if (Datei_->error() != QLockFile::LockFailedError) return std::nullopt;
    qint64 Prozess = 0;
    QString Rechner, Programm;
    Sperrinhaber Inhaber;
    if (!Datei_->getLockInfo(&Prozess, &Rechner, &Programm)) return Inhaber;
    if (Rechner != QSysInfo::machineHostName()) Inhaber.Rechner = Rechner.toStdString();
    const qint64 Alter = QFileInfo(Datei_->fileName()).lastModified().secsTo(QDateTime::currentDateTime());
    Inhaber.Alter = std::chrono::seconds(std::max<qint64>(Alter, 0));
    return Inhaber;
}

void Projektsperre::uebernimm() {
    if (ist_brauchbar() && Datei_->removeStaleLockFile()) Datei_->tryLock(0s);
}

}  // namespace varnok
