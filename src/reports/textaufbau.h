#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace varnok {

// A report text that grows line by line. Lines end in CR LF.
class Textaufbau {
public:
    explicit Textaufbau(std::string& Text) : Text_(&Text) {}

    // Pieces one behind the other, then line ends.
    void Text(std::initializer_list<std::string_view> Stuecke, int Zeilenenden) {
        for (const std::string_view s : Stuecke) Text_->append(s);
        Enden(Zeilenenden);
    }
    // Label, tab, value.
    void Zeile(std::string_view Beschriftung, std::string_view Wert, int Zeilenenden = 1) {
        Text({Beschriftung, "\t", Wert}, Zeilenenden);
    }
    void Enden(int Anzahl) {
        for (int i = 0; i < Anzahl; ++i) Text_->append("\r\n");
    }

private:
    std::string* Text_;
};

}  // namespace varnok
