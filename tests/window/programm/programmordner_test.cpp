// Where the program looks for its project.

#include "window/programm/programmordner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "painting/qt_text.h"
#include "records/simulation.h"
#include "window/programm/programmordner_test.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

const QString installiert = QStringLiteral(VARNOK_DATENORDNER);

void lege_an(const QString& Datei) {
    QFile f(Datei);
    QVERIFY(f.open(QIODevice::WriteOnly));
}

}  // namespace

void Programmordnertest::a_folder_with_a_project_is_taken_as_it_is() {
    const QTemporaryDir mit_Eingaben, mit_Einstellungen, Benutzer;
    QVERIFY(QDir(mit_Eingaben.path()).mkdir(u"Input"_s));
    lege_an(mit_Einstellungen.filePath(u"varnok.INI"_s));
    const QString Daten = Benutzer.filePath(u"daten"_s);
    QCOMPARE(Programmordner(mit_Eingaben.path(), Daten, installiert), mit_Eingaben.path());
    QCOMPARE(Programmordner(mit_Einstellungen.path(), Daten, installiert), mit_Einstellungen.path());
    QVERIFY(!QDir(Daten).exists());
}

void Programmordnertest::elsewhere_the_installed_data_are_copied_for_the_user() {
    const QTemporaryDir leer, Benutzer;
    const QString Daten = Benutzer.filePath(u"daten"_s);
    QCOMPARE(Programmordner(leer.path(), Daten, installiert), Daten);
    QVERIFY(QDir(leer.path()).isEmpty());
    QCOMPARE(QDir(Daten + u"/input"_s).entryList(QDir::Files), QDir(installiert + u"/input"_s).entryList(QDir::Files));
    // The first start opens the start simulation, not one of the examples.
    QCOMPARE(in_Qt(neueste_Simulation(Projektordner(aus_Qt(Daten))).value()), u"Programcheck"_s);
}

void Programmordnertest::the_copy_is_made_once() {
    const QTemporaryDir leer, Benutzer;
    const QString Daten = Benutzer.filePath(u"daten"_s);
    Programmordner(leer.path(), Daten, installiert);
    const QString geloescht = Daten + u"/input/Temperate site.cli"_s;
    QVERIFY(QFile::remove(geloescht));
    Programmordner(leer.path(), Daten, installiert);
    QVERIFY(!QFile::exists(geloescht));
}

}  // namespace varnok
