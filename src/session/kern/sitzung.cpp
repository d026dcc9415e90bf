#include "session/kern/sitzung.h"

#include <QDateTime>
#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

#include "run/kalender.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/texte.h"
#include "session/kern/unterschied.h"
#include "session/programm/programmende.h"
#include "session/programm/startablauf.h"

namespace varnok {
namespace {

constexpr std::array alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};

}  // namespace

Sitzung::Sitzung(Umgebung Welt) { z_.Welt = std::move(Welt); }

void Sitzung::melde_Fehler(const std::string& Text) {
    z_.Meldung_steht = true;  // what stands behind the message may not be what it speaks of
    melde(z_, Texte::Laufzeitfehler, Text);
    z_.Meldung_steht = false;
}

template <class Handlung>
void Sitzung::versuche(Handlung h) {
    try {
        h();
    } catch (const std::exception& Fehler) {
        melde_Fehler(Fehler.what());
    }
}

template <class Handlung>
void Sitzung::tue(Handlung h) {
    Laeufe_.sieh_Klima_an();
    versuche(h);
    schliesse_Handlung_ab();
}

template <class Handlung>
void Sitzung::befolge(Handlung h, bool mit_Lauf) {
    const bool Feld_offen = Felder_.aktives_Feld() >= 0;
    if (!schliesse_Feld_ab(mit_Lauf)) return;
    // What a command finds is complete: a name in the box counts as typed.
    if (Studien_.Name_offen()) bestaetige_Studienname(false);
    fuehre_Verlauf();  // a cell or a name typed before is a step of its own
    Laeufe_.sieh_Klima_an();
    versuche(h);
    // A command that was to run and did not leaves the accepted value without results.
    if (Feld_offen && !mit_Lauf && z_.Hinweis() && !z_.abgedeckt() && !z_.beendet) versuche([&] { Laeufe_.berechne(); });
    schliesse_Handlung_ab();
}

// What follows from the values that an action leaves: marks without a difference go, so does a reason that results have
// overtaken; what is shown is drawn, and then told of.
void Sitzung::schliesse_Handlung_ab() {
    Laeufe_.sieh_Klima_an();  // the action may have named another file, or changed this one
    raeume_Marken_auf();
    if (z_.Gestartet) {
        if (z_.alles_Gezeigte_gueltig()) z_.Gerechnetes.vergiss_Grund();
        versuche([this] { Diagramme_.ziehe_nach(Laeufe_.nimm_Gelaufenes().get()); });
        Laeufe_.melde_Warnungen();
        Berichte_.schliesse_veralteten();
    }
    fuehre_Verlauf();
    fuehre_Statuszeile();
}

// Where a save would write nothing else than the files hold, there is nothing to ask about.
void Sitzung::raeume_Marken_auf() {
    const auto verschieden = [this](Satzart Art) { return z_.verschieden(Art); };
    if (std::any_of(alle_Arten.begin(), alle_Arten.end(), verschieden)) return;
    for (Satzplatz& p : z_.Saetze) p.Geaendert = false;
}

// A field in work is no step yet.
void Sitzung::fuehre_Verlauf() {
    if (std::exchange(z_.Verlauf_beginnt, false)) return z_.Schritte.beginne(z_.Vorgabe);
    if (!Felder_.ist_in_Arbeit()) z_.Schritte.merke(z_.Vorgabe);
}

// A line stands until the next change of an input or a result; one about files is written by their commands.
void Sitzung::fuehre_Statuszeile() {
    const bool neue = z_.Statuszeile != letzte_Statuszeile_;
    // The first results take no line away: until then nobody has seen it.
    const bool andere_Werte = letzte_Werte_ != varnok::Ergebnisse{} && z_.Werte() != letzte_Werte_;
    const bool geaendert = z_.Vorgabe != letzte_Vorgabe_ || andere_Werte;
    if (!neue && geaendert) z_.Statuszeile.clear();
    if (neue && !z_.Statuszeile.empty()) {
        const Systemuhr Maschine;
        const auto jetzt = (z_.Welt.Zeit ? *z_.Welt.Zeit : Maschine).jetzt().time_since_epoch();
        const auto Sekunden = std::chrono::duration_cast<std::chrono::seconds>(jetzt).count();
        z_.Statuszeit = QDateTime::fromSecsSinceEpoch(Sekunden).toString(u"HH:mm").toStdString();
    }
    letzte_Statuszeile_ = z_.Statuszeile;
    letzte_Vorgabe_ = z_.Vorgabe;
    letzte_Werte_ = z_.Werte();
}

void Sitzung::mache_rueckgaengig() {
    befolge([&] {
        if (z_.Schritte.kann_zurueck()) stelle_Eingabe_her(z_.Schritte.zurueck());
    });
}

void Sitzung::wiederhole() {
    befolge([&] {
        if (z_.Schritte.kann_vor()) stelle_Eingabe_her(z_.Schritte.vor());
    });
}

// An input of the history in place of the present one, with the study and the compound in view that it concerns.
void Sitzung::stelle_Eingabe_her(const Eingabe& e) {
    const Unterschied u = vergleiche(z_.Vorgabe, e);
    z_.Vorgabe = e;
    for (const Satzart Art : alle_Arten) {
        if (u.Arten[Art]) z_.Saetze[Art].Geaendert = true;
    }
    if (u.i_studie >= 0) z_.Sicht.Studie_Index = u.i_studie;
    z_.Sicht.Studie_Index = std::min(z_.Sicht.Studie_Index, z_.Studienzahl() - 1);
    if (z_.Studienzahl() < 2) z_.Zusammenfassung_aktiv = false;
    if (u.i_substanz >= 0) z_.Sicht.Substanz = u.i_substanz;
    if (z_.Sicht.Substanz >= Anzahl_Stoffe(z_.Vorgabe.Berechnungsmodus)) z_.Sicht.Substanz = 0;
    Felder_.fuelle();
    Diagramme_.bringe_nach_vorn(z_.Sicht.Substanz);
    Laeufe_.berechne();
    // A run repairs the table; the step is the table as it was, or there would be no way past it.
    z_.Vorgabe.Applikationsschema = e.Applikationsschema;
}

void Sitzung::sieh_an(const std::function<void(Diagrammsteuerung&)>& Befehl) {
    befolge([&] { Befehl(Diagramme_); });
}

void Sitzung::gib_aus(const std::function<void(Bildsteuerung&)>& Befehl) {
    befolge([&] { Befehl(Bilder_); });
}

bool Sitzung::oeffne_Projekt() {
    bool weiter = false;
    tue([&] { weiter = starte_Programm(z_, Saetze_); });
    return weiter && !z_.beendet;
}

int Sitzung::Tage_der_Liste() const { return Tage_im_Monat(z_.Felder().App_Monat + 1); }

int Sitzung::Intervalle_der_Liste() const { return laengstes_Intervall(z_.Felder().Anzahl()); }

Tabellentext Sitzung::Ergebnisse(int i_substanz) const { return varnok::Ergebnisse_einer_Studie(z_, i_substanz); }

Tabellentext Sitzung::Ergebnisse_Zusammenfassung(int i_substanz) const {
    return varnok::Ergebnisse_aller_Studien(z_, i_substanz);
}

void Sitzung::betrete_Feld(int Feld) { Felder_.betrete(Feld); }

void Sitzung::aendere_Feld(int Feld, const std::string& Text) { Felder_.aendere(Feld, Text); }

bool Sitzung::bestaetige_Feld(int Feld) {
    bool angenommen = true;
    tue([&] { angenommen = Felder_.bestaetige(Feld); });
    return angenommen;
}

bool Sitzung::verlasse_Feld(int Feld) {
    bool angenommen = true;
    tue([&] { angenommen = Felder_.verlasse(Feld); });
    return angenommen;
}

void Sitzung::nimm_Feld_zurueck(int Feld) {
    tue([&] { Felder_.nimm_zurueck(Feld); });
}

bool Sitzung::schliesse_Feld_ab(bool mit_Lauf) {
    const int Feld = Felder_.aktives_Feld();
    if (Feld < 0) return true;
    bool angenommen = true;
    tue([&] { angenommen = Felder_.verlasse(Feld, mit_Lauf); });
    return angenommen;
}

void Sitzung::Starten() {
    if (z_.Gestartet) return;
    tue([&] {
        z_.Gestartet = true;
        // The handler of the pattern makes the first run; what it marks is no change of the user.
        Listen_.fuehre_Muster_aus();
        for (Satzplatz& p : z_.Saetze) p.Geaendert = false;
    });
}

void Sitzung::Aktualisieren() {
    befolge(
        [&] {
            if (Saetze_.aktualisiere()) return;
            Laeufe_.berechne_auf_Wunsch(true);
        },
        false);
}

void Sitzung::Speichern() {
    befolge([&] { Saetze_.speichere(); });
}

void Sitzung::Ende() {
    befolge([&] { varnok::Ende(z_, Saetze_); });
}

void Sitzung::lade_Voreinstellungen() {
    befolge([&] { Voreinstellungen_laden(z_, Saetze_); });
}

void Sitzung::suche_nach_Update() {
    befolge([&] { Update_.suche(); });
}

void Sitzung::suche_beim_Start(std::function<void(const std::function<void()>&)> fuehre_aus) {
    Update_.suche_beim_Start([this, fuehre_aus = std::move(fuehre_aus)](const std::string& Seite) {
        fuehre_aus([&] { tue([&] { Update_.melde(Seite); }); });
    });
}

bool Sitzung::schliesse_Fenster() {
    if (z_.beendet) return true;
    Felder_.nimm_Ungueltiges_zurueck();
    tue([&] { z_.beendet = schliesse(z_, Saetze_); });
    return z_.beendet;
}

void Sitzung::zeige_Studien() {
    befolge([&] { Listen_.zeige_Studien(); });
}
void Sitzung::zeige_Zusammenfassung() {
    befolge([&] { Listen_.zeige_Zusammenfassung(); });
}

void Sitzung::schalte_Diagramm_weiter() {
    befolge([&] { Diagramme_.schalte_weiter(); });
}

bool Sitzung::skaliere_Diagramm(const std::string& Start, const std::string& Ende) { return Diagramme_.skaliere(Start, Ende); }

void Sitzung::schliesse_Skalierung() {
    befolge([&] { Laeufe_.berechne(!z_.Zusammenfassung_aktiv); }, false);
}

void Sitzung::merke_Legende(bool Zusammenfassung, int Diagrammsatz, const std::optional<Flaechenort>& Ort) {
    Diagramme_.merke_Legende(Zusammenfassung, Diagrammsatz, Ort);
}

void Sitzung::erstelle_Bericht() {
    befolge([&] {
        if (z_.Gestartet) Berichte_.erstelle();
    });
}
void Sitzung::schliesse_Bericht() { Berichte_.schliesse(); }
void Sitzung::speichere_Bericht_als_PDF(const std::string& Pfad) {
    tue([&] { Berichte_.speichere_PDF(Pfad); });
}

void Sitzung::waehle_Simulation(int Position) {
    befolge([&] { Saetze_.waehle_Simulation(Position); }, false);
}
void Sitzung::waehle_Satz(Satzart Art, int Position) {
    befolge([&] { Saetze_.waehle_Satz(Art, Position); }, false);
}

void Sitzung::lege_Satz_an(Satzart Art) {
    befolge([&] { Saetze_.lege_an(Art); }, false);
}
void Sitzung::kopiere_Satz(Satzart Art) {
    befolge([&] { Saetze_.kopiere(Art); });
}
void Sitzung::loesche_Satz(Satzart Art) {
    befolge([&] { Saetze_.loesche(Art); });
}
bool Sitzung::benenne_Satz_um(Satzart Art, const std::string& Text, bool mit_Frage) {
    bool fertig = false;
    befolge([&] { fertig = Saetze_.benenne_um(Art, Text, mit_Frage); });
    return fertig;
}

void Sitzung::oeffne_Beschreibung() {
    alte_Beschreibung_ = z_.Felder().Beschreibung;
    alte_Marke_ = z_.Saetze[0].Geaendert;
    z_.Beschreibung_offen = true;
}

void Sitzung::aendere_Beschreibung(const std::string& Text) {
    std::string eine_Zeile = Text;
    std::replace_if(
        eine_Zeile.begin(), eine_Zeile.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    if (eine_Zeile == z_.Felder().Beschreibung) return;
    z_.Felder().Beschreibung = eine_Zeile;
    z_.Ergebnisdatei.clear();
    z_.Saetze[0].Geaendert = true;
}

void Sitzung::schliesse_Beschreibung() {
    tue([&] { z_.Beschreibung_offen = false; });
}

void Sitzung::nimm_Beschreibung_zurueck() {
    tue([&] {
        if (!std::exchange(z_.Beschreibung_offen, false)) return;
        z_.Felder().Beschreibung = alte_Beschreibung_;
        z_.Saetze[0].Geaendert = alte_Marke_;
    });
}

void Sitzung::waehle_Substanz(int c) {
    befolge([&] { Listen_.waehle_Substanz(c); });
}
void Sitzung::waehle_Kinetik(int c, Kinetikart k) {
    befolge([&] { Listen_.waehle_Kinetik(c, k); }, false);
}
void Sitzung::waehle_Studie(int i) {
    befolge([&] { Listen_.waehle_Studie(i); });
}
void Sitzung::waehle_Berechnungsmodus(int m) {
    befolge([&] { Listen_.waehle_Berechnungsmodus(static_cast<Stoffschema>(m)); }, false);
}
bool Sitzung::oeffne_Szenarioeditor() {
    bool offen = false;
    const auto oeffne = [&] {
        Editor_.oeffne();
        offen = !z_.beendet;
    };
    // A run that found no climate file has told of it: the field that it came from is not accepted a second time.
    if (z_.Szenarioeditor_faellig) {
        tue(oeffne);
    } else {
        befolge(oeffne);
    }
    return offen;
}
void Sitzung::uebernimm_Szenario() {
    tue([&] { Editor_.uebernimm(); });
}
void Sitzung::schliesse_Szenarioeditor() {
    tue([&] { Editor_.schliesse(); });
}

void Sitzung::addiere_Studie() {
    befolge([&] { Studien_.addiere(); });
}
void Sitzung::loesche_Studie() {
    befolge([&] { Studien_.loesche(); }, false);
}
void Sitzung::beginne_Studienname() {
    befolge([&] { Studien_.beginne_Umbenennen(); });
}
void Sitzung::bestaetige_Studienname(bool Enter) {
    tue([&] { Studien_.bestaetige(Enter); });
}
void Sitzung::nimm_Studienname_zurueck() { Studien_.nimm_zurueck(); }

void Sitzung::aendere_Namen(int c, const std::string& Name) { Listen_.aendere_Namen(c, Name); }
void Sitzung::verlasse_Namen() {
    schliesse_Handlung_ab();  // diagrams carry the names
}

void Sitzung::waehle_Muster(int m) {
    befolge([&] { Listen_.waehle_Muster(static_cast<Applikationsart>(m)); }, false);
}
void Sitzung::waehle_Monat(int i) {
    befolge([&] { Listen_.waehle_Monat(i); }, false);
}
void Sitzung::waehle_Tag(int i) {
    befolge([&] { Listen_.waehle_Tag(i); }, false);
}
void Sitzung::waehle_Intervall(int i) {
    befolge([&] { Listen_.waehle_Intervall(i); }, false);
}
void Sitzung::waehle_Anzahl(int i) {
    befolge([&] { Listen_.waehle_Anzahl(i); }, false);
}

void Sitzung::waehle_Endpunkt(int e) {
    befolge([&] { Listen_.waehle_Endpunkt(static_cast<Endpunktart>(e)); });
}
void Sitzung::waehle_PEC_Typ(int a) {
    befolge([&] { Listen_.waehle_PEC_Typ(static_cast<PEC_Ansicht>(a)); });
}
void Sitzung::waehle_Fruchtwechsel(int r) {
    befolge([&] { Listen_.waehle_Fruchtwechsel(static_cast<Fruchtfolge>(r)); });
}
void Sitzung::waehle_TWA_Laenge(int j) {
    befolge([&] { Listen_.waehle_TWA_Laenge(j); });
}

bool Sitzung::uebernimm_Optionen(const Optionsentwurf& Neue) {
    bool angenommen = false;
    versuche([&] { angenommen = Optionen_.uebernimm(Neue); });  // the action ends when the dialog has closed
    return angenommen;
}
bool Sitzung::schliesse_Optionen() {
    bool Tips = false;
    befolge([&] { Tips = Optionen_.schliesse(); }, false);
    return Tips;
}
std::optional<std::string> Sitzung::lege_Ordner_an(const std::string& darin, const std::string& Name) {
    return Optionen_.lege_Ordner_an(darin, Name);
}

bool Sitzung::lade_Eingabedaten(const std::string& Dateiname) {
    bool gelungen = false;
    tue([&] {
        Dateien_.lade(Dateiname);
        gelungen = true;
    });
    return gelungen;
}
bool Sitzung::speichere_Eingabedaten_unter(const std::string& Dateiname) {
    bool gelungen = false;
    tue([&] { gelungen = Dateien_.speichere(Dateiname); });
    return gelungen;
}
void Sitzung::loesche_Eingabedatei(const std::string& Ordner, const std::string& Dateiname) {
    tue([&] { Dateien_.loesche(Ordner, Dateiname); });
}

bool Sitzung::oeffne_Organiser() {
    bool offen = false;
    befolge([&] {
        offen = true;
        Organiser_.oeffne();
    });
    return offen;
}
void Sitzung::organisiere(const std::function<void(Organiser&)>& Befehl) {
    versuche([&] { Befehl(Organiser_); });  // what the dialog picks is drawn when it has closed
}
void Sitzung::schliesse_Organiser() {
    tue([&] { Organiser_.schliesse_ab(); });
}

void Sitzung::haenge_an_Zelle(Zelle z, char Zeichen) {
    versuche([&] { Tabelle_.haenge_an(z, Zeichen); });  // a cell in work is no step
}
void Sitzung::nimm_letztes_Zeichen(Zelle z) {
    versuche([&] { Tabelle_.nimm_letztes(z); });  // a cell in work is no step
}
void Sitzung::leere_Zelle(Zelle z) {
    versuche([&] { Tabelle_.leere(z); });  // a cell in work is no step
}
void Sitzung::fuege_in_Tabelle_ein(Zelle z, const std::string& Text) {
    versuche([&] { Tabelle_.fuege_ein(z, Text); });  // a cell in work is no step
}
void Sitzung::bestaetige_Tabelle() {
    befolge([&] { Tabelle_.bestaetige(); }, false);
}

}  // namespace varnok
