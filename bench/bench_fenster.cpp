// Time from leaving a field until the window is painted, driven through the real widgets without a display. Typing before it is
// not counted.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "session/kern/sitzung.h"
#include "window/kern/fensterfrage.h"
#include "window/programm/hauptformular.h"

namespace {

using namespace varnok;

// Largest memory of the process so far, MB.
double groesster_Speicher() {
    rusage Verbrauch{};
    getrusage(RUSAGE_SELF, &Verbrauch);
    return static_cast<double>(Verbrauch.ru_maxrss) / 1024;
}

// Answers every question with its first button: nothing here is to wait for a user.
class Jasager : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override { return f.Knoepfe.front(); }
};

// Counts how often a diagram on the screen was painted.
class Malzaehler : public QObject {
public:
    int Zahl = 0;

    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override {
        if (Ereignis->type() == QEvent::Paint && Ziel->inherits("varnok::Diagrammflaeche")) ++Zahl;
        return false;
    }
};

class Arbeitsplatz {
public:
    explicit Arbeitsplatz(const char* Simulation) {
        std::filesystem::copy(VARNOK_DATENORDNER, Ordner_.path().toStdString(), std::filesystem::copy_options::recursive);
        Programm_ = std::make_unique<Sitzung>(Umgebung{&Antworten_, Ordner_.path().toStdString(), "", '.'});
        Programm_->fuehre_aus<&Programmablauf::oeffne_Projekt>();
        Programm_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
        const auto& Namen = Programm_->Stand().Listen[0];
        Programm_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(
            static_cast<int>(std::find(Namen.begin(), Namen.end(), Simulation) - Namen.begin()));
        Fenster_ = std::make_unique<Hauptformular>(*Programm_, nullptr);
        Fenster_->show();
        if (!QTest::qWaitForWindowActive(Fenster_.get())) std::abort();  // without the focus nothing is measured
        qApp->installEventFilter(&gemalt_);
    }

    Sitzung& Programm() { return *Programm_; }

    void tippe(const char* Feld, const QString& Text) {
        f_ = Fenster_->findChild<QLineEdit*>(QString::fromLatin1(Feld));
        f_->setFocus();
        f_->selectAll();
        QTest::keyClicks(f_, Text);
        QCoreApplication::processEvents();
    }

    // Leaves the field with Tab; back when what changed in the window has been painted. False if no diagram was.
    bool verlasse() {
        const int vorher = gemalt_.Zahl;
        QTest::keyClick(f_, Qt::Key_Tab);
        QCoreApplication::processEvents();
        return gemalt_.Zahl > vorher;
    }

private:
    Malzaehler gemalt_;
    QLineEdit* f_ = nullptr;
    QTemporaryDir Ordner_;
    Jasager Antworten_;
    std::unique_ptr<Sitzung> Programm_;
    std::unique_ptr<Hauptformular> Fenster_;
};

void Feld_verlassen(benchmark::State& Zustand, const char* Simulation, bool Zusammenfassung) {
    Arbeitsplatz a(Simulation);
    if (Zusammenfassung) a.Programm().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    int i = 0;
    for (auto _ : Zustand) {
        Zustand.PauseTiming();
        a.tippe("S_Q10_0", ++i % 2 == 0 ? QStringLiteral("2.5") : QStringLiteral("2.6"));
        Zustand.ResumeTiming();
        if (!a.verlasse()) Zustand.SkipWithError("no diagram was painted");
    }
    Zustand.counters["peak_MB"] = groesster_Speicher();
}

// All diagrams of the scheme built anew, with their files written; nothing is calculated.
void Neuzeichnen(benchmark::State& Zustand, const char* Simulation, bool Zusammenfassung) {
    Arbeitsplatz a(Simulation);
    if (Zusammenfassung) a.Programm().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    int i = 0;
    for (auto _ : Zustand) a.Programm().fuehre_aus<&Listenwahl::waehle_Endpunkt>(++i % 2 == 0 ? Gesamtgehalt : Porenwasser);
}

BENCHMARK_CAPTURE(Neuzeichnen, three_compounds, "Sugar beet, Compound E", false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Neuzeichnen, six_studies_summary, "Sugar beet, Compound E", true)->Unit(benchmark::kMillisecond);

// From the button to the report on the screen and its file.
void Bericht_erstellen(benchmark::State& Zustand) {
    Arbeitsplatz a("Sugar beet, Compound E");
    for (auto _ : Zustand) a.Programm().fuehre_aus<&Berichtssteuerung::erstelle>();
}
BENCHMARK(Bericht_erstellen)->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(Feld_verlassen, one_compound, "Programcheck", false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Feld_verlassen, twenty_treatments_two_metabolites, "Ornamentals, Compound D", false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Feld_verlassen, six_studies_summary, "Sugar beet, Compound E", true)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication Anwendung(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
