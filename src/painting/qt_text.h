#pragma once

// Inside the program text is UTF-8; the window speaks QString.

#include <QString>
#include <string>

namespace varnok {

inline QString in_Qt(const std::string& Text) { return QString::fromStdString(Text); }
inline QString in_Qt(int Zahl) { return QString::fromStdString(std::to_string(Zahl)); }
inline std::string aus_Qt(const QString& Text) { return Text.toStdString(); }

}  // namespace varnok
