#pragma once

#include <QDialog>

class QTextEdit;

namespace varnok {

// The program presents itself: name, title, pictures, a text to read and the version. Modal; OK, Enter and Esc close it.
class Textfenster : public QDialog {
    Q_OBJECT
public:
    // `Text`: lines ended by CR LF. `Notizen`: stand in a box above it, under a heading of their own; no box without any.
    Textfenster(const QString& Name, const QString& Titel, const QString& Text, const QStringList& Notizen, QWidget* parent);

private:
    QWidget* erstelle_Kopf();
    QWidget* erstelle_Kasten(const QStringList& Notizen);
    QTextEdit* erstelle_Text(const QString& Titel, const QString& Text);
    QWidget* erstelle_Fuss();
};

}  // namespace varnok
