#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "window/eingabe/feldzeile.h"
#include "window/kern/rahmen.h"

namespace varnok {

class Namensfeld;

// What the compounds are called beside their controls.
inline constexpr std::array<std::u16string_view, Stoffe> Substanznamen = {u"Parent", u"Metab. 1", u"Metab. 2"};

// A page with one row for each compound of the scheme: its caption, its name, its numeric fields.
class Stoffseite : public Rahmen {
    Q_OBJECT
public:
    // `Exemplar`: each name stands on two pages, this is the number of the copy.
    Stoffseite(const QString& Name, int Exemplar, Sitzung& Programm, QWidget* parent);
    void zeige() override;
    void zeige_Namen();

protected:
    // A field below the head of its column; no name leaves the place empty.
    void setze_Feld(Feldsteuerung& Steuerung, int i_substanz, int Spalte, const QString& Objektname);
    QLabel* setze_Kopf(int Spalte, const QString& Text);
    // Tab goes through a compound's row, then to the next compound.
    void ordne_Tabfolge();

    static constexpr int erste_Feldspalte = 2;

private:
    struct Stoffzeile {
        QLabel* Schild = nullptr;
        Namensfeld* Name = nullptr;
        std::vector<Zahlenfeld*> Felder;
    };

    static void benenne(const Stoffzeile& z);

    QGridLayout* Gitter_;
    std::array<Stoffzeile, Stoffe> Zeilen_;
};

// Sorption: Koc of each compound.
class Sorptionsdaten : public Stoffseite {
    Q_OBJECT
public:
    Sorptionsdaten(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent);
};

// The metabolism scheme: molar masses and what part of the parent becomes each metabolite.
class Metabolismusschema : public Stoffseite {
    Q_OBJECT
public:
    Metabolismusschema(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent);
    void zeige() override;

private:
    QLabel* Kopf_Bildung_;
};

}  // namespace varnok
