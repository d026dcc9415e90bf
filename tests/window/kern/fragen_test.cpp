// The boxes that ask: which keys answer them, and with what.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <optional>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterfrage.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Fragentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_letter_answers_only_together_with_alt() {
        const Knopf Antwort = frage(ja_nein(), [](QMessageBox& k) {
            druecke(k, Qt::Key_Y);
            druecke(k, Qt::Key_N);
            QTest::qWait(150);
            QVERIFY(k.isVisible());
            druecke(k, Qt::Key_N, Qt::AltModifier);
        });
        QCOMPARE(Antwort, Knopf::Nein);
        QCOMPARE(frage(ja_nein(), [](QMessageBox& k) { druecke(k, Qt::Key_Y, Qt::AltModifier); }), Knopf::Ja);
    }

    void a_letter_does_not_answer_a_message() {
        frage({"Title", "Text", Symbol::Hinweis, {Knopf::OK}}, [](QMessageBox& k) {
            druecke(k, Qt::Key_O);
            QTest::qWait(150);
            QVERIFY(k.isVisible());
            druecke(k, Qt::Key_Return);
        });
    }

    void esc_and_the_close_box_mean_not_now() {
        QCOMPARE(frage(ja_nein(), [](QMessageBox& k) { druecke(k, Qt::Key_Escape); }), Knopf::nicht_jetzt);
        QCOMPARE(frage(ja_nein(), [](QMessageBox& k) { k.close(); }), Knopf::nicht_jetzt);
    }

    void of_other_questions_they_mean_the_harmless_button() {
        const Frage Hinweis{"Title", "Text", Symbol::Hinweis, {Knopf::OK}};
        const Frage Warnung{"Title", "Text", Symbol::Hinweis, {Knopf::OK, Knopf::Abbrechen}};
        QCOMPARE(frage(Hinweis, [](QMessageBox& k) { druecke(k, Qt::Key_Escape); }), Knopf::OK);
        QCOMPARE(frage(Hinweis, [](QMessageBox& k) { k.close(); }), Knopf::OK);
        QCOMPARE(frage(Warnung, [](QMessageBox& k) { druecke(k, Qt::Key_Escape); }), Knopf::Abbrechen);
        QCOMPARE(frage(Warnung, [](QMessageBox& k) { k.close(); }), Knopf::Abbrechen);
    }

    void enter_presses_the_first_button() {
        QCOMPARE(frage(ja_nein(), [](QMessageBox& k) { druecke(k, Qt::Key_Return); }), Knopf::Ja);
    }

    // Nothing that is typed on in haste writes into another record.
    void without_a_default_button_enter_and_space_wait_for_tab() {
        const Knopf Antwort = frage(ohne_Vorgabe(), [](QMessageBox& k) {
            for (const Qt::Key t : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Right, Qt::Key_Y}) druecke(k, t);
            QTest::qWait(150);
            QVERIFY(k.isVisible());
            druecke(k, Qt::Key_Tab);
            const auto* Taste = qobject_cast<QPushButton*>(QApplication::focusWidget());
            QVERIFY(Taste && Taste->isDefault());
            druecke(k, Qt::Key_Return);
        });
        QVERIFY(Antwort == Knopf::Ja || Antwort == Knopf::Nein);
    }

    void without_a_default_button_the_mouse_the_letters_and_esc_answer() {
        const auto klicke = [](QMessageBox::StandardButton b) {
            return [b](QMessageBox& k) { QTest::mouseClick(k.button(b), Qt::LeftButton); };
        };
        QCOMPARE(frage(ohne_Vorgabe(), klicke(QMessageBox::Yes)), Knopf::Ja);
        QCOMPARE(frage(ohne_Vorgabe(), klicke(QMessageBox::No)), Knopf::Nein);
        QCOMPARE(frage(ohne_Vorgabe(), [](QMessageBox& k) { druecke(k, Qt::Key_N, Qt::AltModifier); }), Knopf::Nein);
        QCOMPARE(frage(ohne_Vorgabe(), [](QMessageBox& k) { druecke(k, Qt::Key_Escape); }), Knopf::nicht_jetzt);
    }

    void a_press_beside_the_buttons_wakes_them() {
        const Knopf Antwort = frage(ohne_Vorgabe(), [](QMessageBox& k) {
            QTest::mouseClick(&k, Qt::LeftButton, {}, QPoint(3, 3));
            druecke(k, Qt::Key_Tab);
            QVERIFY(qobject_cast<QPushButton*>(QApplication::focusWidget()));
            druecke(k, Qt::Key_Escape);
        });
        QCOMPARE(Antwort, Knopf::nicht_jetzt);
    }

    void a_question_within_a_question_is_not_done() {
        Fensterfrage Fragen;
        std::optional<Knopf> innen;
        frage(
            ja_nein(),
            [&](QMessageBox& k) {
                innen = Fragen.frage(ja_nein());
                druecke(k, Qt::Key_Escape);
            },
            Fragen);
        QCOMPARE(innen.value(), Knopf::nicht_jetzt);
    }

private:
    static Frage ja_nein() {
        return {"Save changes?", "The record has changed.", Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}};
    }
    static Frage ohne_Vorgabe() {
        Frage f = ja_nein();
        f.ohne_Vorgabe = true;
        return f;
    }
    // A key as the desktop delivers it: to what has the focus in the box.
    static void druecke(QMessageBox& k, Qt::Key Taste, Qt::KeyboardModifiers Zusatz = {}) {
        QTest::keyClick(k.windowHandle(), Taste, Zusatz);
    }
    static Knopf frage(const Frage& f, const std::function<void(QMessageBox&)>& Handlung) {
        Fensterfrage Fragen;
        return frage(f, Handlung, Fragen);
    }
    // Asks, acts in the box, and waits until it is answered.
    static Knopf frage(const Frage& f, const std::function<void(QMessageBox&)>& Handlung, Fensterfrage& Fragen) {
        bool beantwortet = true;
        QTimer::singleShot(10, &Fragen_traeger(), [&] {
            auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!Kasten) qFatal("no box");
            Kasten->activateWindow();
            if (!QTest::qWaitForWindowActive(Kasten)) qFatal("the box does not become active");
            Handlung(*Kasten);
            beantwortet = QTest::qWaitFor([&] { return !QApplication::activeModalWidget(); }, 500);
            if (!beantwortet) Kasten->done(QMessageBox::Discard);
        });
        const Knopf Antwort = Fragen.frage(f);
        [&] { QVERIFY(beantwortet); }();
        return Antwort;
    }
    static QObject& Fragen_traeger() {
        static QObject o;
        return o;
    }
};

namespace {
const Anmeldung<Fragentest> angemeldet;
}

}  // namespace varnok

#include "fragen_test.moc"
