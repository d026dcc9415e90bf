#include "batch/zeilendatei.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <system_error>

#include "base/laufzeitfehler.h"
#include "records/ersatzdatei.h"

namespace varnok::batch {
namespace {

QString als_QString(const std::string& Text) { return QString::fromStdString(Text); }

// A new file; a reader of the old one keeps what it has. What is no plain file (a device, a pipe) stays.
void raeume(const QString& Pfad) {
    const QFileInfo Info(Pfad);
    if (Info.isSymLink() || Info.isFile()) QFile::remove(Pfad);
}

}  // namespace

Zeilendatei::Zeilendatei(const std::string& Pfad) : Pfad_(Pfad), Datei_(std::make_unique<QFile>(als_QString(Pfad))) {
    raeume(Datei_->fileName());
    if (!Datei_->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) melde();
}

Zeilendatei::Zeilendatei(const std::string& Pfad, std::int64_t behalten)
    : Pfad_(Pfad), Datei_(std::make_unique<QFile>(als_QString(Pfad))) {
    if (!Datei_->open(QIODevice::ReadWrite | QIODevice::Unbuffered)) melde();
    if (!Datei_->resize(behalten) || !Datei_->seek(behalten)) melde();
}

Zeilendatei::~Zeilendatei() = default;

void Zeilendatei::schreibe(std::string_view Zeilen) {
    while (!Zeilen.empty()) {
        const qint64 Schritt = Datei_->write(Zeilen.data(), static_cast<qint64>(Zeilen.size()));
        if (Schritt <= 0) melde();
        Zeilen.remove_prefix(static_cast<std::size_t>(Schritt));
    }
}

void Zeilendatei::beende() {
    if (!leere_auf_Platte(Datei_->handle())) melde(std::generic_category().message(errno));
}

void Zeilendatei::melde() const { melde(Datei_->errorString().toStdString()); }

void Zeilendatei::melde(const std::string& Grund) const {
    throw Laufzeitfehler("Cannot write the file \"" + Pfad_ + "\": " + Grund);
}

}  // namespace varnok::batch
