#include "window/kern/fensterprobe.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "painting/qt_text.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// The newest simulation is the one that the program opens.
void kopiere_Daten(const QString& Ziel) {
    const QDir von(QStringLiteral(VARNOK_DATENORDNER "/input"));
    QDir(Ziel).mkpath(u"input"_s);
    for (const QFileInfo& Datei : von.entryInfoList(QDir::Files)) {
        const QString neu = Ziel + u"/input/"_s + Datei.fileName();
        QFile::copy(Datei.filePath(), neu);
        QFile Kopie(neu);
        if (Datei.fileName() == u"Programcheck.vnk"_s || !Kopie.open(QIODevice::ReadWrite)) continue;
        Kopie.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime);
    }
}

// The button that Enter presses; of a question without one the first.
QAbstractButton* Vorgabe(const QMessageBox& Kasten) {
    QAbstractButton* Taste = Kasten.defaultButton();
    return Taste ? Taste : Kasten.buttons().front();
}

}  // namespace

Fensterprobe::Fensterprobe(Rueckfrage* Fragen, const std::function<void(const QString&)>& Projekt,
                           const Aktualisierungswelt& Update, const std::function<bool(const std::string&)>& weiteres_Fenster) {
    kopiere_Daten(Ordner_.path());
    if (Projekt) Projekt(Ordner_.path());
    Umgebung Welt{Fragen ? Fragen : &Fragen_, aus_Qt(Ordner_.path()), VARNOK_DATENORDNER, '.', nullptr, Update};
    Welt.weiteres_Fenster = weiteres_Fenster;
    Welt.zuletzt_Datei = aus_Qt(Ordner_.filePath(u"recent.txt"_s));
    Programm_ = std::make_unique<Sitzung>(Welt);
    if (!Programm_->fuehre_aus<&Programmablauf::oeffne_Projekt>()) qFatal("the project cannot be loaded");
    Fenster_ = std::make_unique<Hauptformular>(*Programm_, &Fragen_);
    Fenster_->resize(1180, 760);
    Fenster_->show();
    aktiviere();
}

void Fensterprobe::starte() { klicke("Starten"); }

void Fensterprobe::aktiviere() {
    Fenster_->activateWindow();
    if (!QTest::qWaitForWindowActive(Fenster_.get())) qFatal("the window does not become active");
}

bool Fensterprobe::gibt_es_sichtbar(const QString& Name) const {
    const auto* w = Fenster_->findChild<QWidget*>(Name);
    return w && w->isVisible();
}

QByteArray Fensterprobe::Inhalt(const QString& Datei) const {
    QFile f(Pfad(Datei));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString Fensterprobe::Zelle(const char* Tafel, int Zeile, int Spalte) const {
    const QTableWidgetItem* z = Teil<QTableWidget>(Tafel)->item(Zeile, Spalte);
    return z ? z->text().trimmed() : QString();
}

void Fensterprobe::klicke(const char* Knopfname) {
    QTest::mouseClick(Teil<QPushButton>(Knopfname), Qt::LeftButton);
    QTest::qWait(1);
}

void Fensterprobe::druecke_langsam(const char* Teilname) {
    const auto* w = Teil<QWidget>(Teilname);
    const QPoint Ort = w->mapTo(Fenster_.get(), w->rect().center());
    QTest::mousePress(Fenster_->windowHandle(), Qt::LeftButton, {}, Ort);
    QTest::qWait(60);
    QTest::mouseRelease(Fenster_->windowHandle(), Qt::LeftButton, {}, Ort);
    QTest::qWait(30);
}

void Fensterprobe::waehle(const char* Option) {
    auto* o = Teil<QRadioButton>(Option);
    QTest::mouseClick(o, Qt::LeftButton, {}, QPoint(8, o->height() / 2));
    QTest::qWait(1);
}

void Fensterprobe::waehle_Eintrag(const char* Liste, int Position) {
    auto* l = Teil<QComboBox>(Liste);
    l->setFocus(Qt::MouseFocusReason);
    l->setCurrentIndex(Position);
    Q_EMIT l->activated(Position);
    QTest::qWait(1);
}

void Fensterprobe::waehle_Simulation(const char* Name) {
    const int i = Teil<QComboBox>("Simulationsliste")->findText(QString::fromLatin1(Name));
    if (i < 0) qFatal("no simulation %s", Name);
    waehle_Eintrag("Simulationsliste", i);
}

void Fensterprobe::tippe(const char* Feld, const char* Text) {
    auto* f = Teil<QLineEdit>(Feld);
    QTest::mouseClick(f, Qt::LeftButton);
    QTest::qWait(1);
    f->selectAll();
    QTest::keyClicks(f, QString::fromLatin1(Text));
}

void Fensterprobe::blaettere(const char* Leiste, int Seite) {
    auto* l = Teil<QTabBar>(Leiste);
    QTest::mouseClick(l, Qt::LeftButton, {}, l->tabRect(Seite).center());
    QTest::qWait(1);
}

void Fensterprobe::druecke(const char* Teilname, Qt::Key Taste, Qt::KeyboardModifiers Zusatz) {
    QTest::keyClick(Teil<QWidget>(Teilname), Taste, Zusatz);
    QTest::qWait(1);
}

QString Fensterprobe::Meldung_bei(const std::function<void()>& Handlung) {
    QString Text;
    QTimer Waechter;
    QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
        auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!Kasten) return;
        if (!Text.isEmpty()) qFatal("a second message: %s", qPrintable(Kasten->text()));
        Text = Kasten->text();
        Vorgabe(*Kasten)->click();
    });
    Waechter.start(5);
    Handlung();
    QTest::qWait(60);
    Waechter.stop();
    aktiviere();
    return Text;
}

QStringList Fensterprobe::Kaesten_bei(const std::function<void()>& Handlung, QMessageBox::StandardButton Antwort) {
    QStringList Texte;
    QTimer Waechter;
    QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
        auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!Kasten) return;
        if (Texte.size() > 20) qFatal("a message without end: %s", qPrintable(Kasten->text()));
        Texte << Kasten->windowTitle() + u": "_s + Kasten->text();
        QAbstractButton* Taste = Kasten->button(Antwort);
        (Taste ? Taste : Vorgabe(*Kasten))->click();
    });
    Waechter.start(5);
    Handlung();
    QTest::qWait(60);
    Waechter.stop();
    if (Fenster_->isVisible()) aktiviere();
    return Texte;
}

}  // namespace varnok
