#pragma once

// The window on a copy of the shipped data, driven without a display, for the programs that take its pictures.

#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QPalette>
#include <QTemporaryDir>
#include <memory>

#include "window/kern/fensterfrage.h"
#include "window/programm/hauptformular.h"

namespace varnok {

class Diagrammflaeche;

// A dark desktop, which the frames of the input and the surfaces of the diagrams do not follow.
QPalette dunkle_Palette();

class Probefenster {
public:
    // Shows the start page. Pictures go into that folder.
    explicit Probefenster(const QString& Zielordner);

protected:
    // With its commonest colours, the others as the nearest of these: a third of the size, and the eye sees no difference.
    void sichere(const QImage& Bild, const QString& Datei, int Farbzahl = 256) const;

    template <class W>
    W* Teil(const QString& Name) {
        W* w = Fenster_->findChild<W*>(Name);
        if (!w) qFatal("no control %s", qPrintable(Name));
        return w;
    }
    void aktiviere();
    void Taste(const QString& Name);
    void Option(const QString& Name);
    void Seite(int i);
    void befehle(const QString& Name);
    void waehle_Simulation(const QString& Name);
    // Left clicks on the diagram in front.
    void klicke_weiter(int Anzahl);
    Diagrammflaeche* vorn();

    QDir Ziel_;
    QTemporaryDir Projekt_;
    Fensterfrage Fragen_;
    std::unique_ptr<Sitzung> Programm_;
    std::unique_ptr<Hauptformular> Fenster_;

private:
    void kopiere_Projekt();
};

}  // namespace varnok
