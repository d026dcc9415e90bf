#pragma once

#include "records/projektordner.h"
#include "window/kern/rahmen.h"

namespace varnok {

class Satzliste;

// The line of a record in its frame: the selector of its files with the buttons to copy and delete it.
class Satzzeile : public Rahmen {
    Q_OBJECT
public:
    // `Bedeutung`: accessible name of the list, the caption of its frame.
    Satzzeile(Satzart Art, const QString& Bedeutung, Sitzung& Programm, QWidget* parent);
    void zeige() override;
    void haenge_an(QWidget* Taste);

private:
    Satzliste* Satz_;
};

}  // namespace varnok
