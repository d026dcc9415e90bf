#include "records/sicherung.h"

#include <QDateTime>
#include <QDir>
#include <QString>
#include <QStringList>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

QString Zeitname(const Uhr& Zeit) {
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(Zeit.jetzt().time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(ms).toString(u"yyyy-MM-dd HH-mm-ss"_s);
}

// Two commands in one second have folders of their own, in the order of their names.
QString lege_an(const QDir& Alle, const QString& Zeitpunkt) {
    QString Name = Zeitpunkt;
    for (int n = 2; Alle.exists(Name); ++n) {
        Name = Zeitpunkt + u' ' + QString::fromStdString(std::to_string(n)).rightJustified(4, u'0');
    }
    if (!Alle.mkpath(Name)) throw Laufzeitfehler("Cannot make the folder \"" + Alle.filePath(Name).toStdString() + "\"");
    return Name;
}

// Names begin with the date, so the order of names is that of time.
void raeume_auf(const QDir& Alle) {
    QStringList Namen = Alle.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    while (static_cast<std::size_t>(Namen.size()) > Hoechstzahl_Sicherungen) {
        QDir(Alle.filePath(Namen.takeFirst())).removeRecursively();
    }
}

}  // namespace

std::string sichere(const Projektordner& Ordner, const Uhr& Zeit, const std::vector<Sicherungsstueck>& Stuecke) {
    if (Stuecke.empty()) return {};
    const QDir Alle(QString::fromStdString(Ordner.Unterordner("backup")));
    const QString Name = lege_an(Alle, Zeitname(Zeit));
    for (const Sicherungsstueck& s : Stuecke) schreibe_Datei(Alle.filePath(Name).toStdString() + "/" + s.Dateiname, s.Bytes);
    raeume_auf(Alle);
    return "backup/" + Name.toStdString();
}

}  // namespace varnok
