#include "records/sicherung.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <algorithm>
#include <set>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/schreibort.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1String unfertig("unfinished ");

QString Zeitname(const Uhr& Zeit) {
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(Zeit.jetzt().time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(ms).toString(u"yyyy-MM-dd HH-mm-ss"_s);
}

QDir alle_Sicherungen(const Projektordner& Ordner) { return {QString::fromStdString(Ordner.Unterordner("backup"))}; }

// Names begin with the date, so the order of names is that of time, the oldest first. A folder of another name is the user's,
// and a link is no backup.
QStringList eigene_Ordner(const QDir& Alle) {
    static const QRegularExpression eigene(u"^\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d( \\d+)?$"_s);
    return Alle.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name).filter(eigene);
}

// Two commands in one second have folders of their own, in the order of their names.
QString freier_Name(const QDir& Alle, const QString& Zeitpunkt) {
    QString Name = Zeitpunkt;
    const auto vergeben = [&] { return Alle.exists(Name) || QFileInfo(Alle.filePath(Name)).isSymLink(); };
    for (int n = 2; vergeben(); ++n) {
        Name = Zeitpunkt + u' ' + QString::fromStdString(std::to_string(n)).rightJustified(4, u'0');
    }
    return Name;
}

// A name before its extension, which has four characters, cut at a whole character.
std::string gekuerzt(const std::string& Dateiname, std::size_t Laenge) {
    const std::string Endung = Dateiname.substr(Dateiname.size() - std::min<std::size_t>(4, Dateiname.size()));
    std::size_t Ende = std::min(Laenge, Dateiname.size()) - Endung.size();
    const auto mitten_im_Zeichen = [&] { return (static_cast<unsigned char>(Dateiname[Ende]) & 0xC0) == 0x80; };
    while (mitten_im_Zeichen()) --Ende;
    return Dateiname.substr(0, Ende);
}

// File systems take 255 bytes, and some are for the file written beside the target. Two names that are cut alike are told apart.
std::vector<Sicherungsstueck> mit_passenden_Namen(std::vector<Sicherungsstueck> Stuecke) {
    constexpr std::size_t Hoechstlaenge = 240;
    std::set<std::string> vergeben;
    for (Sicherungsstueck& s : Stuecke) {
        const std::string Endung = s.Dateiname.substr(s.Dateiname.size() - std::min<std::size_t>(4, s.Dateiname.size()));
        std::string Name = s.Dateiname.size() <= Hoechstlaenge ? s.Dateiname : gekuerzt(s.Dateiname, Hoechstlaenge) + Endung;
        for (int n = 2; !vergeben.insert(Name).second; ++n) {
            const std::string Zusatz = " (" + std::to_string(n) + ")";
            Name = gekuerzt(s.Dateiname, Hoechstlaenge - Zusatz.size()) + Zusatz + Endung;
        }
        s.Dateiname = std::move(Name);
    }
    return Stuecke;
}

// What a program that was killed left while it made a backup.
void raeume_Unfertiges(const QDir& Alle, const Projektordner& Ordner) {
    const auto Filter = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    const QDateTime vor_einer_Stunde = QDateTime::currentDateTime().addSecs(-3600);
    for (const QFileInfo& Rest : Alle.entryInfoList({unfertig + u'*'}, Filter)) {
        if (Rest.lastModified() < vor_einer_Stunde) entferne_Ordner(Rest.filePath().toStdString(), Ordner.Pfad());
    }
}

// The one just made stays also where the clock was put back.
void raeume_auf(const QDir& Alle, const QString& neu, const Projektordner& Ordner) {
    QStringList Namen = eigene_Ordner(Alle);
    Namen.removeAll(neu);
    while (static_cast<std::size_t>(Namen.size()) >= Hoechstzahl_Sicherungen) {
        entferne_Ordner(Alle.filePath(Namen.takeFirst()).toStdString(), Ordner.Pfad());
    }
    raeume_Unfertiges(Alle, Ordner);
}

bool liegt_in(const std::string& Sicherung, const Sicherungsstueck& s) {
    const std::string Pfad = Sicherung + "/" + s.Dateiname;
    if (QFileInfo(QString::fromStdString(Pfad)).isSymLink()) return false;
    try {
        return lies_Datei_falls_moeglich(Pfad) == s.Bytes;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

// Under a name of its own until all is in it: what is called a backup is a whole one.
void fuelle(const std::string& Ort, const std::vector<Sicherungsstueck>& Stuecke, const Projektordner& Ordner) {
    lege_Ordner_an(Ort, Ordner.Pfad());
    for (const Sicherungsstueck& s : Stuecke) {
        schreibe_Datei(Ort + "/" + s.Dateiname, s.Bytes, {Schreibweise::ungefragt, Ordner.Pfad()});
    }
}

}  // namespace

std::string sichere(const Projektordner& Ordner, const Uhr& Zeit, const std::vector<Sicherungsstueck>& Stuecke) {
    if (Stuecke.empty()) return {};
    const QDir Alle = alle_Sicherungen(Ordner);
    std::vector<Sicherungsstueck> neue = mit_passenden_Namen(Stuecke);
    if (const QStringList vorhandene = eigene_Ordner(Alle); !vorhandene.isEmpty()) {
        const std::string letzte = Alle.filePath(vorhandene.back()).toStdString();
        std::erase_if(neue, [&](const Sicherungsstueck& s) { return liegt_in(letzte, s); });
        if (neue.empty()) return "backup/" + vorhandene.back().toStdString();
    }
    const std::string Ort = Alle.filePath(unfertig + QUuid::createUuid().toString(QUuid::WithoutBraces)).toStdString();
    const bool erste = !Alle.exists();
    QString Name;
    try {
        fuelle(Ort, neue, Ordner);
        Name = freier_Name(Alle, Zeitname(Zeit));
        benenne_Datei_um(Ort, Alle.filePath(Name).toStdString());
    } catch (const Laufzeitfehler&) {
        entferne_Ordner(Ort, Ordner.Pfad());
        if (erste) QDir().rmdir(Alle.path());
        throw;
    }
    raeume_auf(Alle, Name, Ordner);
    return "backup/" + Name.toStdString();
}

std::vector<Sicherungsordner> Sicherungen(const Projektordner& Ordner) {
    std::vector<Sicherungsordner> Gefundene;
    const QDir Alle = alle_Sicherungen(Ordner);
    if (liegt_ausserhalb(Alle.path().toStdString(), Ordner.Pfad())) return Gefundene;
    const QStringList Namen = eigene_Ordner(Alle);
    for (auto n = Namen.rbegin(); n != Namen.rend(); ++n) {
        Sicherungsordner s{n->toStdString(), {}};
        const QDir Inhalt(Alle.filePath(*n));
        for (const QString& Datei : Inhalt.entryList(QDir::Files | QDir::NoSymLinks, QDir::Name)) {
            s.Dateien.push_back(Datei.toStdString());
        }
        if (!s.Dateien.empty()) Gefundene.push_back(std::move(s));
    }
    return Gefundene;
}

std::string lies_Sicherung(const Projektordner& Ordner, const std::string& Sicherung, const std::string& Dateiname) {
    return lies_Datei(Ordner.Unterordner("backup") + "/" + Sicherung + "/" + Dateiname);
}

}  // namespace varnok
