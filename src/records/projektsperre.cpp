#include "records/projektsperre.h"

#include <QLockFile>
#include <chrono>

namespace varnok {

Projektsperre::Projektsperre(const Projektordner& Ordner)
    : Datei_(std::make_unique<QLockFile>(QString::fromStdString(Ordner.Pfad() + "/.varnok.lock"))) {
    // A window may stay open for days: its file never counts as left over because of its age.
    Datei_->setStaleLockTime(std::chrono::seconds(0));
    Datei_->tryLock(std::chrono::seconds(0));
}

Projektsperre::~Projektsperre() = default;

bool Projektsperre::von_anderem_gehalten() {
    if (Datei_->isLocked() || Datei_->tryLock(std::chrono::seconds(0))) return false;
    return Datei_->error() == QLockFile::LockFailedError;
}

}  // namespace varnok
