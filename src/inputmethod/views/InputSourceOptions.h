#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "ui/controls/Chooser.h"

#include <string>
#include <vector>

namespace brindlex {

/// The input sources to choose from, with their badges; behind them `selected`, if it is none of
/// them, so that a rule shows what it names.
std::vector<Chooser::Option> inputSourceOptions(
    const InputMethodSettings& settings, const std::string& selected);

/// Which of the options stands for the source, whatever spelling a rule has for it.
std::string optionOf(const InputMethodSettings& settings, const std::string& inputSourceID);

/// The name of the source; its identifier where it is not there.
std::string inputSourceName(const InputMethodSettings& settings, const std::string& inputSourceID);

} // namespace brindlex
