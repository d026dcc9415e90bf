#pragma once

#include <QDialog>

class QTextEdit;

namespace varnok {

// The program presents itself: name, title, pictures, a text to read and the version. Modal; OK, Enter and Esc close it.
class Textfenster : public QDialog {
    Q_OBJECT
public:
    // `Text`: lines ended by CR LF.
    Textfenster(const QString& Name, const QString& Titel, const QString& Text, QWidget* parent);

private:
    QWidget* erstelle_Kopf();
    QTextEdit* erstelle_Text(const QString& Titel, const QString& Text);
    QWidget* erstelle_Fuss();
};

}  // namespace varnok
