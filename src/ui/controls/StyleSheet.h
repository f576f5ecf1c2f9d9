#pragma once

#include <QString>

namespace brindlex {

class Theme;

/// How the window library's own controls are to be drawn: fields, buttons, choosers, sliders,
/// tables, menus. What a control of ours paints by itself is not in it.
QString styleSheet(const Theme& theme);

} // namespace brindlex
