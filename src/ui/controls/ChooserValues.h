#pragma once

#include "foundation/JsonEnumeration.h"
#include "ui/controls/Chooser.h"

#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace brindlex {

/// What stands for a value of an enumeration in a chooser: as it is stored, and else its number.
template <typename Value>
std::string optionOfValue(Value value)
{
    if constexpr (HasStoredValues<Value>) {
        std::ostringstream text;
        text << storedValue(value);
        return text.str();
    } else {
        return std::to_string(static_cast<int>(value));
    }
}

/// The value that an option made of it stands for.
template <typename Value>
Value valueWithOption(const std::string& option)
{
    if constexpr (HasStoredValues<Value>) {
        for (const auto value : allCases<Value>())
            if (optionOfValue(value) == option)
                return value;
        return {};
    } else {
        return static_cast<Value>(std::stoi(option));
    }
}

/// An option for each of the values, in their order; `nameOf` says what it is called.
template <typename Values, typename Name>
std::vector<Chooser::Option> optionsOfValues(const Values& values, Name nameOf)
{
    std::vector<Chooser::Option> options;
    for (const auto value : values)
        options.push_back({optionOfValue(value), nameOf(value), {}});
    return options;
}

/// The same for all values that can be stored.
template <HasStoredValues Value, typename Name>
std::vector<Chooser::Option> optionsOfAllValues(Name nameOf)
{
    return optionsOfValues(allCases<Value>(), nameOf);
}

} // namespace brindlex
