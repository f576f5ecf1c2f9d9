#pragma once

#include <QWidget>

#include <string>

namespace brindlex {

/// What a screen reader finds in a window: a line for each element that says something, indented
/// below the one that it is in, with its role, its name, its value and its states.
std::string accessibleTree(QWidget& window);

} // namespace brindlex
