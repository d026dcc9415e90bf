#pragma once

// Inside the program text is UTF-8; the window speaks QString.

#include <QString>
#include <string>
#include <string_view>

namespace varnok {

inline QString in_Qt(std::string_view Text) { return QString::fromUtf8(Text.data(), static_cast<qsizetype>(Text.size())); }
inline QString in_Qt(int Zahl) { return QString::fromStdString(std::to_string(Zahl)); }
inline std::string aus_Qt(const QString& Text) { return Text.toStdString(); }

}  // namespace varnok
