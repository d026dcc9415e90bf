#pragma once

#include <string>
#include <vector>

class QWidget;

namespace varnok {

class cTooltip;

// Gives the controls of the form their tips, the first tip first. A second time it replaces the texts and adds no tool.
void erstelle_tooltips(cTooltip& Tooltip, QWidget& Formular, const std::vector<std::string>& Tips);

}  // namespace varnok
