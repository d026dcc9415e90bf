#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace varnok {

// What a control has not room enough for in the present font; empty if all of it is seen. Texts that end in dots and tell
// the rest in their tip, and lists of names that the user gives, are whole by definition.
QString Mangel(const QWidget& w);

// The same for everything that is visible in `Bereich`, which nothing may stick out of: names and widths, one to a line. What
// lies outside a part that scrolls is no fault where its bar is seen.
QString Maengel(const QWidget& Bereich);

}  // namespace varnok
