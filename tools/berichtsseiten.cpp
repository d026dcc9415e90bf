// Writes the reports of every kind, as rich text and as PDF, for the pictures of their pages:
//
//     berichtsseiten <folder>

#include <QDir>
#include <QGuiApplication>

#include "records/dateien.h"
#include "reports/berichtsarten.h"
#include "reports/seitenausgabe.h"

int main(int argc, char** argv) {
    const QGuiApplication Anwendung(argc, argv);
    if (argc != 2) qFatal("usage: berichtsseiten <folder>");
    const QDir Ordner(QString::fromLocal8Bit(argv[1]));
    for (const varnok::probe::Berichtsfall& f : varnok::probe::Berichtsfaelle()) {
        const varnok::Bericht b = f.schreibe();
        const std::string Pfad = Ordner.filePath(QString::fromLatin1(f.Name)).toStdString();
        varnok::schreibe_Datei(Pfad + ".rtf", b.RTF);
        varnok::schreibe_Datei(Pfad + ".print.pdf", varnok::als_PDF(*b.Dokument, b.Name));
    }
    return 0;
}
