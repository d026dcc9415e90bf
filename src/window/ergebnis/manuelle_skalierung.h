#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QComboBox;

namespace varnok {

// The dialog for the time range of the diagram in front.
class Manuelle_Skalierung : public QDialog {
    Q_OBJECT
public:
    // Takes start and end as typed; false for an end that is refused, after the user was told.
    using Annahme = std::function<bool(const std::string& Start, const std::string& Ende)>;

    Manuelle_Skalierung(double X_Start, double X_Ende, char Dezimalzeichen, Annahme nimm_an, QWidget* parent);

    // Closes only if the values are accepted.
    void accept() override;

private:
    Annahme nimm_an_;
    QComboBox* Startzeitpunkt_;
    QComboBox* Skalierung_X_Achse_;
};

}  // namespace varnok
