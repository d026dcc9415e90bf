// The desktop program.

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/programm.h"
#include "extras/netzabruf.h"
#include "painting/qt_text.h"
#include "window/kern/bilder.h"
#include "window/kern/fensterfrage.h"
#include "window/programm/hauptformular.h"
#include "window/programm/programmordner.h"

using namespace Qt::StringLiterals;

namespace {

// Answered without a display. The program reads nothing else from its command line.
bool beantworte(std::string_view Argument) {
    if (Argument == "--version") {
        std::puts((std::string("VARNOK ") + varnok::Programmversion).c_str());
    } else if (Argument == "--help") {
        std::fputs(
            "varnok: predicted environmental concentrations of plant protection products in soil.\n"
            "Opens the window on the project of the current folder, else on that of the user. Takes no arguments.\n"
            "Calculations without a window: varnok-batch --help\n",
            stdout);
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && beantworte(argv[1])) return 0;

    QApplication Anwendung(argc, argv);
    QApplication::setApplicationName(u"varnok"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(varnok::Programmversion));
    QApplication::setDesktopFileName(u"varnok"_s);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setWindowIcon(varnok::Bild_aus_SVG(u"varnok"_s));
    // Numbers that Qt writes follow no locale; records keep the decimal separator of the region.
    const bool Komma = QLocale::system().decimalPoint() == u","_s;
    QLocale::setDefault(QLocale::c());

    const QString installiert = QStringLiteral(VARNOK_DATENORDNER);
    const QString Datenordner = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString Ordner = varnok::Programmordner(QDir::currentPath(), Datenordner, installiert);
    const QString Fensterdatei = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u"/window.ini"_s;

    varnok::Fensterfrage Fragen;
    varnok::Netzabruf Netz;
    varnok::Dateitausch Tausch(varnok::aus_Qt(QApplication::applicationFilePath()), varnok::aus_Qt(QDir::currentPath()),
                               QApplication::applicationPid());
    varnok::Sitzung Programm({&Fragen,
                              varnok::aus_Qt(Ordner),
                              varnok::aus_Qt(installiert),
                              Komma ? ',' : '.',
                              nullptr,
                              {varnok::Ziel_der_Auslieferung(), &Netz, &Tausch}});
    if (!Programm.fuehre_aus<&varnok::Programmablauf::oeffne_Projekt>()) return 0;
    varnok::Hauptformular Fenster(Programm, &Fragen, Fensterdatei);
    Fenster.show();
    QTimer::singleShot(0, &Fenster, &varnok::Hauptformular::suche_beim_Start);
    return QApplication::exec();
}
