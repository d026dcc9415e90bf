#pragma once

// Programs of other makers, where they are installed, as witnesses.

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <optional>
#include <string>

namespace varnok::probe {

inline bool ist_da(const char* Programm) { return !QStandardPaths::findExecutable(QString::fromLatin1(Programm)).isEmpty(); }

// Standard output of a program that works in that folder, nothing if it is not installed.
inline std::optional<std::string> rufe(const char* Programm, const QStringList& Argumente, const QString& Ordner = {}) {
    if (!ist_da(Programm)) return std::nullopt;
    QProcess p;
    if (!Ordner.isEmpty()) p.setWorkingDirectory(Ordner);
    p.start(QString::fromLatin1(Programm), Argumente);
    EXPECT_TRUE(p.waitForFinished(100000)) << Programm;
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return p.readAllStandardOutput().toStdString();
}

// Every `Was` replaced.
inline std::string ersetzt(std::string Text, const std::string& Was, const std::string& Womit) {
    for (std::size_t i = Text.find(Was); i != std::string::npos; i = Text.find(Was, i + Womit.size()))
        Text.replace(i, Was.size(), Womit);
    return Text;
}

// A text without what falls as the width of a page wants it.
inline std::string ohne_Luecken(std::string Text) {
    std::erase_if(Text, [](char z) { return z == ' ' || z == '\t' || z == '\r' || z == '\n'; });
    return Text;
}

}  // namespace varnok::probe
