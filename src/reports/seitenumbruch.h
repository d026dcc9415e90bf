#pragma once

#include <QTextBlock>
#include <QTextDocument>
#include <vector>

namespace varnok {

// A line of a document that is laid out, with its place from the top of it all.
struct Druckzeile {
    QTextBlock Absatz;
    int Nummer = 0;  // within the paragraph
    double oben = 0;
    double unten = 0;
};

using Druckseite = std::vector<Druckzeile>;

// The lines of each page of that height. What is to stay together does unless it is higher than a page; empty lines neither
// begin a page nor make one.
std::vector<Druckseite> teile_in_Seiten(const QTextDocument& Dokument, double Hoehe);

}  // namespace varnok
