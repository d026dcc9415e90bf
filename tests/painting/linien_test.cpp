// Line work, counted in pixels.

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <set>

#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/bildprobe.h"
#include "painting/zeichner.h"

namespace varnok::probe {
namespace {

constexpr int Groesse = 200;  // units

QImage gemalt(const Zeichenliste& z, double Massstab) {
    const auto Pixel = static_cast<int>(std::lround(Groesse * Massstab));
    QImage Bild(Pixel, Pixel, QImage::Format_RGB32);
    Bild.fill(Qt::white);
    QPainter p(&Bild);
    p.scale(Massstab, Massstab);
    male(p, QRectF(0, 0, Groesse, Groesse), z);
    return Bild;
}

Zeichenliste Liste() {
    Zeichenliste z;
    z.System = {0, Groesse, Groesse, 0};
    return z;
}

// Widths of the pieces of a colour along a row, or along a column.
std::vector<int> Breiten(const QImage& Bild, int Stelle, bool Zeile, QRgb Farbe = 0xFF000000) {
    std::vector<int> Stuecke;
    bool davor = false;
    for (int i = 0; i < Bild.width(); ++i) {
        const bool da = (Zeile ? Bild.pixel(i, Stelle) : Bild.pixel(Stelle, i)) == Farbe;
        if (da && !davor) Stuecke.push_back(0);
        if (da) ++Stuecke.back();
        davor = da;
    }
    return Stuecke;
}

// The scales of a screen and those of pictures of 150, 300 and 600 dpi.
class Massstaebe : public ::testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(alle, Massstaebe, ::testing::Values(1, 1.25, 1.5, 2, 150 / 96.0, 300 / 96.0, 600 / 96.0));

TEST_P(Massstaebe, ticks_of_one_width_take_the_same_whole_pixels_wherever_they_stand) {
    Zeichenliste z = Liste();
    for (double x = 10; x < 190; x += 7.31) z.Linien.push_back({{x, 80}, {x, 140}});
    for (double y = 10; y < 50; y += 7.31) z.Linien.push_back({{20, y}, {180, y}, 0, 2});
    const QImage Bild = gemalt(z, GetParam());
    const auto duenn = static_cast<int>(std::lround(GetParam()));
    const auto doppelt = static_cast<int>(std::lround(2 * GetParam()));
    EXPECT_EQ(Breiten(Bild, Bild.height() / 2, true), std::vector<int>(25, duenn));
    // A column clear of all ticks above.
    const std::vector<int> liegende = Breiten(Bild, static_cast<int>(100 * GetParam()), false);
    EXPECT_EQ(std::count(liegende.begin(), liegende.end(), doppelt), 6);
    // Nothing but black and white: no line is blurred.
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) ASSERT_TRUE(Bild.pixel(x, y) == 0xFF000000 || Bild.pixel(x, y) == 0xFFFFFFFF);
    }
}

TEST_P(Massstaebe, corners_of_axes_and_boxes_are_closed) {
    Zeichenliste z = Liste();
    z.Linien = {{{20.3, 30.7}, {180, 30.7}}, {{20.3, 30.7}, {20.3, 150.2}}};
    z.Kaesten.push_back({{60.4, 120.9}, {110.1, 80.3}});
    const QImage Bild = gemalt(z, GetParam());
    const auto Breite = static_cast<int>(std::lround(GetParam()));
    const auto Anfang = [&](double Ort) { return static_cast<int>(std::lround(Ort * GetParam() - Breite / 2.0)); };
    const int y0 = Anfang(Groesse - 30.7);
    for (const auto& [x, y] : {std::pair(Anfang(20.3), y0),
                               {Anfang(60.4), Anfang(Groesse - 120.9)},
                               {Anfang(110.1), Anfang(Groesse - 80.3)},
                               {Anfang(110.1), Anfang(Groesse - 120.9)}}) {
        for (int i = 0; i < Breite * Breite; ++i) EXPECT_EQ(Bild.pixel(x + i % Breite, y + i / Breite), 0xFF000000);
    }
    EXPECT_EQ(Bild.pixel(Anfang(20.3) - 1, y0), 0xFFFFFFFF);
    EXPECT_EQ(Bild.pixel(Anfang(20.3), y0 + Breite), 0xFFFFFFFF);
}

// A straight line of many pieces is painted as the line itself: no piece and no strip leaves a mark.
TEST_P(Massstaebe, pieces_of_a_curve_meet_without_a_trace) {
    Zeichenliste ganz = Liste();
    ganz.Linien.push_back({{2.3, 11.1}, {197.7, 88.8}, 1, 2});
    Zeichenliste gestueckelt = Liste();
    const int n = 3649;
    const auto Ort = [](int i) { return Punkt{2.3 + 195.4 * i / n, 11.1 + 77.7 * i / n}; };
    for (int i = 0; i < n; ++i) gestueckelt.Linien.push_back({Ort(i), Ort(i + 1), 1, 2});
    const QImage a = gemalt(ganz, GetParam());
    const QImage b = gemalt(gestueckelt, GetParam());
    int groesster = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) groesster = std::max(groesster, std::abs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y))));
    }
    EXPECT_LE(groesster, 16);  // of 255: places are rounded to a sixty-fourth of a pixel
}

// The dashes of a curve of many days run on over its strips.
TEST(Striche, of_a_curve_of_many_days_are_as_long_as_those_of_one_line) {
    Zeichenliste ganz = Liste();
    ganz.Linien.push_back({{2, 50}, {198, 51}, 1, 2, 1});
    Zeichenliste gestueckelt = Liste();
    const auto Ort = [](int i) { return Punkt{2 + 0.2 * i, 50 + i / 980.0}; };
    for (int i = 0; i < 980; ++i) gestueckelt.Linien.push_back({Ort(i), Ort(i + 1), 1, 2, 1});
    const QImage a = gemalt(ganz, 2);
    const QImage b = gemalt(gestueckelt, 2);
    const auto Striche = [](const QImage& Bild) { return Breiten(Bild, 300, true, 0xFF000080).size(); };
    EXPECT_GE(Striche(a), 4U);
    EXPECT_EQ(Striche(a), Striche(b));
    int fremde = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) fremde += std::abs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y))) > 60;
    }
    EXPECT_LE(fremde, 10);
}

TEST(Striche, patterns_differ) {
    std::set<std::vector<int>> Muster;
    for (int m = 0; m < Strichmusterzahl; ++m) {
        Zeichenliste z = Liste();
        z.Linien.push_back({{2, 50}, {198, 50}, 1, 2, m});
        Muster.insert(Breiten(gemalt(z, 2), 300, true, 0xFF000080));
    }
    EXPECT_EQ(Muster.size(), 6U);
}

// The legend hides what lies behind it; its own sample lines stand upon it.
TEST(Kasten, that_is_filled_hides_the_lines_before_it) {
    Zeichenliste z = Liste();
    z.Linien = {{{0, 100}, {200, 100}, 1, 2}, {{60, 90}, {90, 90}, 4, 2}};
    z.Kaesten.push_back({{50, 120}, {150, 80}, Schwarz, 1, 1});
    const QImage Bild = gemalt(z, 1);
    EXPECT_EQ(Bild.pixel(20, 100), 0xFF000080);
    EXPECT_EQ(Bild.pixel(70, 100), 0xFFFFFFFF);
    EXPECT_EQ(Bild.pixel(70, 110), 0xFF800000);
}

}  // namespace
}  // namespace varnok::probe
