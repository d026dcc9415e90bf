#include "extras/programmtausch.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUuid>
#include <array>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "records/dateien.h"

namespace varnok {
namespace {

#ifdef _WIN32
constexpr bool mit_Stapeldateien = true;
#else
constexpr bool mit_Stapeldateien = false;
#endif

constexpr const char* Stapelname = "Varnok.exe";
constexpr const char* neuer_Stapelname = "New_Varnok.exe";

QString als_QString(const std::string& Utf8) { return QString::fromStdString(Utf8); }

// As one word of the shell, whatever is in it.
std::string Shellwort(const std::string& Text) {
    std::string Wort = "'";
    for (const char c : Text) Wort += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return Wort + "'";
}

// Folders that belong to the system's packages even where the user is the administrator.
bool gehoert_einem_Paket(const std::string& Ordner) {
    const auto liegt_in = [&](const char* Wurzel) { return (Ordner + "/").rfind(Wurzel, 0) == 0; };
    return liegt_in("/bin/") || liegt_in("/sbin/") || (liegt_in("/usr/") && !liegt_in("/usr/local/"));
}

}  // namespace

std::string Tauschskript(const Skriptangaben& a) {
    const std::string alt = Shellwort("./" + a.Programm);
    const std::string neu = Shellwort("./" + a.neues);
    const std::string selbst = Shellwort("./" + a.Skript);
    return "#!/bin/sh\n"
           "cd " +
           Shellwort(a.Ordner) +
           " || exit 1\n"
           "Runden=0\n"
           "while kill -0 " +
           std::to_string(a.Prozess) +
           " 2>/dev/null; do\n"
           "    Runden=$((Runden + 1))\n"
           "    if [ $Runden -gt 600 ]; then\n"
           "        rm -f " +
           neu + " " + selbst +
           "\n"
           "        exit 1\n"
           "    fi\n"
           "    sleep 0.1\n"
           "done\n"
           "[ -L " +
           alt + " ] || [ -d " + alt + " ] || mv -f " + neu + " " + alt +
           "\n"
           "rm -f " +
           neu + " " + selbst +
           "\n"
           "cd " +
           Shellwort(a.Startordner) +
           "\n"
           "exec " +
           Shellwort(a.Ordner + "/" + a.Programm) + "\n";
}

std::string Tauschstapel() {
    constexpr std::array Zeilen = {
        "Echo on", "Pause", "copy New_Varnok.exe Varnok.exe", "del New_Varnok.exe", "Varnok.exe", "del update.bat", "exit"};
    std::string Text;
    for (const char* Zeile : Zeilen) Text.append(Zeile).append("\r\n");
    return Text;
}

Dateitausch::Dateitausch(const std::string& Programmdatei, std::string Startordner, std::int64_t Prozess) {
    const QFileInfo Datei(als_QString(Programmdatei));
    Angaben_ = {Datei.absolutePath().toStdString(), Datei.fileName().toStdString(), std::move(Startordner), Prozess, {}, {}};
}

bool Dateitausch::moeglich() const {
    if (gehoert_einem_Paket(Angaben_.Ordner)) return false;
    // The batch lines name the program.
    if (mit_Stapeldateien && !gleich_ohne_Gross_Klein(Angaben_.Programm, Stapelname)) return false;
    if (!mit_Stapeldateien && !QFileInfo(QStringLiteral("/bin/sh")).isExecutable()) return false;
    const QFileInfo Datei(als_QString(alte_Datei())), Ordner(als_QString(Angaben_.Ordner));
    return Datei.isFile() && !Datei.isSymLink() && Datei.isWritable() && Ordner.isWritable();
}

void Dateitausch::bereite_vor(const std::string& Programm) {
    const std::string Kennung = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
    Angaben_.neues = mit_Stapeldateien ? neuer_Stapelname : "." + Angaben_.Programm + "-" + Kennung;
    schreibe_Datei(neue_Datei(), Programm, als_Datei);
    const QString neu = als_QString(neue_Datei());
    if (!QFile::setPermissions(neu, QFile::permissions(als_QString(alte_Datei())))) {
        throw Laufzeitfehler("Cannot make the file \"" + neue_Datei() + "\" a program");
    }
    Angaben_.Skript = mit_Stapeldateien ? "update.bat" : "." + Angaben_.Programm + "-" + Kennung + ".sh";
    schreibe_Datei(Skriptdatei(), mit_Stapeldateien ? Tauschstapel() : Tauschskript(Angaben_), als_Datei);
}

bool Dateitausch::starte_neues_Programm() {
    QProcess Helfer;
    Helfer.setProgram(mit_Stapeldateien ? QStringLiteral("cmd.exe") : QStringLiteral("/bin/sh"));
    QStringList Argumente{als_QString(Skriptdatei())};
    if (mit_Stapeldateien) Argumente = {QStringLiteral("/c"), QStringLiteral("update.bat")};
    Helfer.setArguments(Argumente);
    Helfer.setWorkingDirectory(als_QString(Angaben_.Ordner));
    return Helfer.startDetached();
}

void Dateitausch::verwirf() {
    for (std::string* Name : {&Angaben_.neues, &Angaben_.Skript}) {
        if (!Name->empty()) QFile::remove(als_QString(im_Ordner(*Name)));
        Name->clear();
    }
}

}  // namespace varnok
