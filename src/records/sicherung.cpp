#include "records/sicherung.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
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

// File systems take 255 bytes, and some are for the file written beside the target: a name at that limit is cut before its
// extension.
std::string passend(const std::string& Dateiname) {
    constexpr std::size_t Hoechstlaenge = 240;
    if (Dateiname.size() <= Hoechstlaenge) return Dateiname;
    const std::string Endung = Dateiname.substr(Dateiname.size() - 4);
    std::size_t Ende = Hoechstlaenge - Endung.size();
    const auto mitten_im_Zeichen = [&] { return (static_cast<unsigned char>(Dateiname[Ende]) & 0xC0) == 0x80; };
    while (mitten_im_Zeichen()) --Ende;
    return Dateiname.substr(0, Ende) + Endung;
}

// Names begin with the date, so the order of names is that of time. A folder of another name is the user's; the one just made
// stays also where the clock was put back.
void raeume_auf(const QDir& Alle, const QString& neu) {
    static const QRegularExpression eigene(u"^\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d( \\d+)?$"_s);
    QStringList Namen = Alle.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name).filter(eigene);
    Namen.removeAll(neu);
    while (static_cast<std::size_t>(Namen.size()) >= Hoechstzahl_Sicherungen) {
        QDir(Alle.filePath(Namen.takeFirst())).removeRecursively();
    }
}

}  // namespace

std::string sichere(const Projektordner& Ordner, const Uhr& Zeit, const std::vector<Sicherungsstueck>& Stuecke) {
    if (Stuecke.empty()) return {};
    const QDir Alle(QString::fromStdString(Ordner.Unterordner("backup")));
    const QString Name = lege_an(Alle, Zeitname(Zeit));
    const std::string Ort = Alle.filePath(Name).toStdString();
    for (const Sicherungsstueck& s : Stuecke) schreibe_Datei(Ort + "/" + passend(s.Dateiname), s.Bytes);
    raeume_auf(Alle, Name);
    return "backup/" + Name.toStdString();
}

}  // namespace varnok
