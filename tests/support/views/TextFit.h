#pragma once

#include <QWidget>

#include <string>
#include <vector>

namespace brindlex {

/// What is wrong with the texts of a window that is shown, in words: texts that are cut off, and
/// controls that overlap. Empty when all is right.
std::vector<std::string> textFaults(const QWidget& window);

} // namespace brindlex
