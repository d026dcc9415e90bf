// The desktop program.

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/druckbares.h"
#include "base/programm.h"
#include "extras/netzabruf.h"
#include "painting/qt_text.h"
#include "session/kern/texte.h"
#include "session/programm/projektwahl.h"
#include "window/kern/bilder.h"
#include "window/kern/fensterfrage.h"
#include "window/kern/rahmenfarben.h"
#include "window/programm/hauptformular.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int falscher_Aufruf = 2;

// Answered without a display.
bool beantworte(std::string_view Argument) {
    if (Argument == "--version") {
        std::puts((std::string("VARNOK ") + varnok::Programmversion).c_str());
    } else if (Argument == "--help") {
        std::fputs(
            "varnok [PROJECT | SIMULATION.vnk]: predicted environmental concentrations of plant protection products in soil.\n"
            "Opens the window on a project folder or on a simulation of its folder \"input\"; without an argument on the "
            "project\n"
            "of the current folder, else on the folder VARNOK of the user's documents. Takes --version and --help.\n"
            "Calculations without a window: varnok-batch --help\n",
            stdout);
    } else {
        return false;
    }
    return true;
}

// The only argument, empty without one; what else stands in the call has no meaning.
std::optional<std::string> Argument_des_Aufrufs(const QStringList& Argumente) {
    if (Argumente.size() > 2) return std::nullopt;
    return Argumente.size() < 2 ? std::string() : varnok::aus_Qt(Argumente[1]);
}

varnok::Projektorte Orte_des_Programms() {
    const auto Ort = [](QStandardPaths::StandardLocation o) { return varnok::aus_Qt(QStandardPaths::writableLocation(o)); };
    return {varnok::aus_Qt(QDir::currentPath()), Ort(QStandardPaths::AppDataLocation), Ort(QStandardPaths::DocumentsLocation),
            varnok::installierte_Daten(varnok::aus_Qt(QApplication::applicationFilePath()))};
}

varnok::Projektwahl waehle(const varnok::Projektorte& Orte) {
    const auto Argument = Argument_des_Aufrufs(QApplication::arguments());
    if (!Argument) return {{}, {}, "varnok opens one project folder or one simulation (*.vnk) at a time"};
    return varnok::waehle_Projekt(*Argument, Orte);
}

bool starte_weiteres_Fenster(const std::string& Pfad) {
    return QProcess::startDetached(QApplication::applicationFilePath(), {varnok::in_Qt(Pfad)});
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && beantworte(argv[1])) return 0;

    QApplication Anwendung(argc, argv);
    QApplication::setApplicationName(u"varnok"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(varnok::Programmversion));
    QApplication::setDesktopFileName(u"org.varnok.varnok"_s);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(varnok::lesbare_Markierung(QApplication::palette()));
    QApplication::setWindowIcon(varnok::Bild_aus_SVG(u"varnok"_s));
    // Numbers that Qt writes follow no locale; records keep the decimal separator of the region.
    const bool Komma = QLocale::system().decimalPoint() == u","_s;
    QLocale::setDefault(QLocale::c());

    const QString Einstellungsordner = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    const QString Fensterdatei = Einstellungsordner + u"/window.ini"_s;

    auto Netz = std::make_unique<varnok::Netzabruf>(true);
    varnok::Fensterfrage Fragen;
    const varnok::Projektorte Orte = Orte_des_Programms();
    const varnok::Projektwahl Projekt = waehle(Orte);
    if (!Projekt.Einwand.empty()) {
        std::fputs(("varnok: " + varnok::druckbar(Projekt.Einwand) + "\n").c_str(), stderr);
        Fragen.frage({varnok::Texte::Laufzeitfehler, Projekt.Einwand, varnok::Symbol::Ausrufezeichen, {varnok::Knopf::OK}});
        return falscher_Aufruf;
    }
    varnok::Dateitausch Tausch(varnok::aus_Qt(QApplication::applicationFilePath()), varnok::aus_Qt(QDir::currentPath()),
                               QApplication::applicationPid());
    int Ausgang = 0;
    {
        varnok::Sitzung Programm({&Fragen,
                                  Projekt.Ordner,
                                  Orte.installierte_Daten,
                                  Komma ? ',' : '.',
                                  nullptr,
                                  {varnok::Ziel_der_Auslieferung(), Netz.get(), &Tausch},
                                  argc > 1,
                                  Projekt.Simulation,
                                  starte_weiteres_Fenster,
                                  varnok::aus_Qt(Einstellungsordner + u"/recent.txt"_s)});
        if (!Programm.fuehre_aus<&varnok::Programmablauf::oeffne_Projekt>()) return 0;
        varnok::Hauptformular Fenster(Programm, &Fragen, Fensterdatei);
        Fenster.show();
        QTimer::singleShot(0, &Fenster, &varnok::Hauptformular::suche_beim_Start);
        Ausgang = QApplication::exec();
    }
    Netz.reset();
    // Whoever still waits for a proxy would make the end of the process wait for it.
    if (varnok::Netzabruf::haengt()) std::_Exit(Ausgang);
    return Ausgang;
}
