// Time from leaving a field to a repainted window, driven through the real widgets without a display.

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

class Arbeitsplatz {
public:
    explicit Arbeitsplatz(const char* Simulation) {
        std::filesystem::copy(VARNOK_DATENORDNER, Ordner_.path().toStdString(), std::filesystem::copy_options::recursive);
        Programm_ = std::make_unique<Sitzung>(Umgebung{&Antworten_, Ordner_.path().toStdString(), "", '.'});
        Programm_->fuehre_aus<&Programmablauf::oeffne_Projekt>();
        Programm_->fuehre_aus<&Programmablauf::starte>();
        const auto& Namen = Programm_->Stand().Listen[0];
        Programm_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(
            static_cast<int>(std::find(Namen.begin(), Namen.end(), Simulation) - Namen.begin()));
        Fenster_ = std::make_unique<Hauptformular>(*Programm_, nullptr);
        Fenster_->show();
        if (!QTest::qWaitForWindowActive(Fenster_.get())) std::abort();  // without the focus nothing is measured
    }

    Sitzung& Programm() { return *Programm_; }

    // Types into a field and leaves it with Tab; back when the window has been painted anew.
    void tippe(const char* Feld, const QString& Text) {
        auto* f = Fenster_->findChild<QLineEdit*>(QString::fromLatin1(Feld));
        f->setFocus();
        f->selectAll();
        QTest::keyClicks(f, Text);
        QTest::keyClick(f, Qt::Key_Tab);
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(Fenster_->grab());
    }

private:
    QTemporaryDir Ordner_;
    Jasager Antworten_;
    std::unique_ptr<Sitzung> Programm_;
    std::unique_ptr<Hauptformular> Fenster_;
};

void Feld_verlassen(benchmark::State& Zustand, const char* Simulation, bool Zusammenfassung) {
    Arbeitsplatz a(Simulation);
    if (Zusammenfassung) a.Programm().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    int i = 0;
    for (auto _ : Zustand) a.tippe("S_Q10_0", ++i % 2 == 0 ? QStringLiteral("2.5") : QStringLiteral("2.6"));
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
