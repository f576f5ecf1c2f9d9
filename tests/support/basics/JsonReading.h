#pragma once

#include "foundation/JsonCoding.h"

#include <string_view>

namespace brindlex {

/// What a text, which must be JSON, stands for, or why it stands for no such value.
template <typename Value>
Result<Value, JsonProblem> readJson(std::string_view text)
{
    return fromJson<Value>(parseJson(text).value());
}

/// What any text stands for, or why it stands for no such value.
template <typename Value>
Result<Value, JsonProblem> readText(std::string_view text)
{
    const auto document = parseJson(text);
    if (!document)
        return fail(document.error());
    return fromJson<Value>(*document);
}

} // namespace brindlex
