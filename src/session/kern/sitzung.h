#pragma once

// The program behind the screen. Every decision is taken in one of the parts, and every user action comes to its part on one
// way; the widgets show `Zustand` and the parts.

#include <array>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "session/kern/ablaeufe.h"

namespace varnok {

class Sitzung {
    // All parts of `Sitzung` or `const Sitzung`.
    template <class S>
    static auto Teile_von(S& s) {
        return std::tie(s.Diagramme_, s.Bilder_, s.Laeufe_, s.Felder_, s.Ruecknahme_, s.Saetze_, s.Umbenennung_, s.Organiser_,
                        s.Listen_, s.Studien_, s.Beschreibung_, s.Editor_, s.Tabelle_, s.Berichte_, s.Update_, s.Optionen_,
                        s.Dateien_, s.Hilfe_, s.Programm_, s.Zwischenstand_, s.Zeichen_, s.Projekte_, s.Wiederherstellung_);
    }
    auto Teile() { return Teile_von(*this); }
    auto Teile() const { return Teile_von(*this); }

public:
    explicit Sitzung(Umgebung Welt);

    const Zustand& Stand() const { return z_; }
    // What a part has to show: `zeige<Feldeingabe>().Text(Feld)`.
    template <class Teil>
    const Teil& zeige() const {
        return std::get<const Teil&>(Teile());
    }

    // A command of a part: `fuehre_aus<&Listenwahl::waehle_Monat>(i)`. What stands around it says its line in ablaeufe.h. Gives
    // what the command gives, or whether it was done; false or nothing where the field in work refused its value, and after a
    // fault, if that line says nothing else.
    template <auto Befehl, class... Angaben>
    auto fuehre_aus(Angaben&&... a) {
        using Teil = Teil_mit<Befehl>;
        using Antwort = std::invoke_result_t<decltype(Befehl), Teil&, Angaben...>;
        using Wert = std::conditional_t<std::is_void_v<Antwort>, bool, std::decay_t<Antwort>>;
        constexpr Ablauf Weg = Ablauf_von<Befehl>(alle_Befehle);
        Wert w{};
        fuehre(Weg, [&] {
            if constexpr (std::is_same_v<Wert, bool>) w = Weg.nach_Fehler;
            if constexpr (std::is_void_v<Antwort>) {
                std::invoke(Befehl, std::get<Teil&>(Teile()), std::forward<Angaben>(a)...);
                w = true;
            } else {
                w = std::invoke(Befehl, std::get<Teil&>(Teile()), std::forward<Angaben>(a)...);
            }
        });
        return w;
    }

private:
    using Handlung = std::function<void()>;

    void fuehre(const Ablauf& Weg, const Handlung& h);
    void versuche(const Handlung& h);
    bool nimm_Texte_an(bool mit_Lauf);
    void schliesse_Handlung_ab();
    void zeichne_Stand();
    void fuehre_Statuszeile();

    Zustand z_;
    Diagrammsteuerung Diagramme_{z_};
    Bildsteuerung Bilder_{z_, Diagramme_};
    Laufsteuerung Laeufe_{z_};
    Feldeingabe Felder_{z_, Laeufe_};
    Ruecknahme Ruecknahme_{z_, Laeufe_, Felder_, Diagramme_};
    Satzverwaltung Saetze_{z_, Laeufe_, Felder_, Diagramme_};
    Satzumbenennung Umbenennung_{z_, Saetze_};
    Organiser Organiser_{z_, Saetze_};
    Listenwahl Listen_{z_, Laeufe_, Felder_, Diagramme_};
    Studienverwaltung Studien_{z_, Laeufe_, Felder_};
    Beschreibungseingabe Beschreibung_{z_};
    Szenarioeditor Editor_{z_, Laeufe_, Saetze_};
    Applikationstabelle Tabelle_{z_, Laeufe_};
    Berichtssteuerung Berichte_{z_, Laeufe_, Diagramme_};
    Aktualisierungssteuerung Update_{z_, [this] { Saetze_.sichere_Ungesichertes(); }};
    Optionensteuerung Optionen_{z_, Laeufe_, Listen_};
    Eingabedateien Dateien_{z_, Saetze_};
    Hilfetexte Hilfe_{z_};
    Zeichenmeldung Zeichen_{z_};
    Projektoeffnung Projekte_{z_, Saetze_};
    Zwischensicherung Zwischenstand_{z_, Saetze_, Felder_};
    Programmablauf Programm_{z_, Saetze_, Felder_, Laeufe_, Studien_, Umbenennung_, Tabelle_, Zwischenstand_};
    Wiederherstellung Wiederherstellung_{z_, Saetze_};
    // As the last action left them.
    Eingabe letzte_Vorgabe_;
    std::array<std::string, 4> letzte_Namen_;
    Ergebnisse letzte_Werte_;
};

}  // namespace varnok
