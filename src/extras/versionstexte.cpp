#include "extras/versionstexte.h"

namespace varnok {
namespace {

constexpr std::string_view Trennzeile = "----------------------------------------";
constexpr std::string_view Kopf_Version = "Version 2.0 (";

// The notes keep the wording that they were published with, slips included.
const std::vector<Version>& alle_Versionen() {
    static const std::vector<Version> Liste = {
        {"21 September 2018",
         {{"The estimation of the final plateau for non-SFO-kinetics was improved by implementing an exponential equation "
           "instead of a polynom.",
           "It will only influence the PEC of very persistent compounds."}}},
        {"5 September 2017",
         {{"In the new version the time dependent concentrations in soil are additionally written in an ASCII-file."},
          {"The consideration of daily weather data was disabled due to accuracy problems."}}},
        {"18 November 2016",
         {{"In the previous version sometimes a wrong warning was shown that the final plateau wasn't reached though the "
           "substance degraded fast."}}},
        {"5 November 2015", {{"In the previous version the user could select plateau depths smaller than the soil depth."}}},
        {"28 July 2015", {{"In rare situations negative plateau concentrations could be simulationed due to rounding errors."}}},
        {"26 June 2015",
         {{"If steady state conditions were not reached after 10 years the estimation of the fraction of the plateau was "
           "sometimes estimated wrongly."}}},
        {"23 Feb 2015", {{"The user can now choose the folder for the input and output files."}}},
        {"28 Jan 2014", {{"In the previous version the program could crash when scenario data were changed."}}},
        {"14 Jan 2014", {{"In the previous version the input files were saved twice."}}},
        {"27 Nov 2012",
         {{"A new option was implemented in addition to variable climatic condition.",
           "When using the new feature VARNOK will consider the theoretical platau",
           "instead of estimations based on the accumulation in the first 10 years."}}},
        {"29 Aug 2012",
         {{"There was a problem for substances with short half lives ",
           "in combination with SFO-kintics without temperature and soil moisture correction",
           "which ended in an overflow-error."}}},
        {"08 Oct 2011", {{"In the previous version the diagram could not be pasted into the report under Microsoft Windows 7."}}},
        {"10 Jan 2011", {{"The update server was moved. The program now looks for new versions at its new address."}}},
        {"27 Oct 2010",
         {{"A new list box has been added which allows the user to consider crop rotation.",
           "A linear reduction factor was introduced to correct the background concentration",
           "Please notice that the effect of crop rotation is only shown in the tabular output.",
           "The graphical output is still related to applications every year."}}},
        {"11 May 2010", {{"If input data is missing the program now offers to load the program defaults."}}},
        {"20 Apr 2010", {{"At the start the program now reloads the last combination of input files."}}},
        {"6 Nov 2009", {{"The saving of simulations was corrected."}}},
        {"21 Oct 2009",
         {{"In the previous versions the application rate was wrong for multiple applications in combination with "
           "DFOP-kinetics."}}},
        {"06 Oct 2009", {{"In the previous versions the soil moisture correction for metabolites was done wrongly. "}}},
        {"06 Aug 2009", {}},
    };
    return Liste;
}

const std::vector<std::vector<const char*>>& Notizen_der_Ausgabe() {
    static const std::vector<std::vector<const char*>> Liste = {
        {"The program runs on Linux; varnok-batch makes the same calculations without a window."},
        {"Diagrams can be read with the mouse, copied, and saved as PNG, SVG and PDF; reports can be saved as PDF."},
        {"Numbers may be typed with a decimal point or a decimal comma."},
        {"Other projects and what was open last are in the menu \"File\"; F1 explains the field in focus."},
        {"A fault in a file is told with the name of the file, and what was entered stays.",
         "Files are replaced in one step: when saving fails the old file is still there."},
    };
    return Liste;
}

void fuege_an(std::string& Text, std::string_view Zeile) {
    Text += Zeile;
    Text += "\r\n";
}

void fuege_an(std::string& Text, const std::vector<std::vector<const char*>>& Notizen) {
    for (const auto& Notiz : Notizen) {
        for (const char* Zeile : Notiz) fuege_an(Text, Zeile);
        fuege_an(Text, Trennzeile);
    }
}

}  // namespace

std::span<const Version> Versionen() { return alle_Versionen(); }

std::string Versionstext() {
    std::string Text;
    for (const Version& v : Versionen()) {
        fuege_an(Text, std::string(Kopf_Version) + v.Datum + ")");
        fuege_an(Text, v.Notizen);
    }
    return Text;
}

std::vector<std::string> Ausgabenotizen() {
    std::vector<std::string> Notizen;
    for (const auto& Notiz : Notizen_der_Ausgabe()) {
        std::string Text;
        for (const char* Zeile : Notiz) Text += (Text.empty() ? "" : " ") + std::string(Zeile);
        Notizen.push_back(Text);
    }
    return Notizen;
}

bool ist_Versionskopf(std::string_view Zeile) { return Zeile.starts_with(Kopf_Version); }

bool ist_Trennzeile(std::string_view Zeile) { return Zeile == Trennzeile; }

}  // namespace varnok
