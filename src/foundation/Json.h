#pragma once

#include "foundation/JsonForm.h"
#include "foundation/Result.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace brindlex {

/// A JSON document whose objects keep their keys sorted, which takes any number of keys in little
/// time; in a `Json` object each key costs a look at all others.
using SortedJson = nlohmann::json;

/// The document as compact text. Bytes that are not UTF-8 become U+FFFD.
std::string jsonText(const Json& document);

/// The document as text for a person to read, indented by two spaces.
std::string prettyJsonText(const Json& document);

/// The text as a document, with the keys of its objects sorted, or where and why it is not JSON. Of
/// a key that stands there twice the last value counts.
Result<Json, JsonProblem> parseJson(std::string_view text);

/// The same as a document that stays sorted whatever is put into it.
Result<SortedJson, JsonProblem> parseSortedJson(std::string_view text);

/// Calls `visit` with each element of the text, which is a list, in their order. Holds one of them
/// at a time in memory. A text that turns out not to be JSON is a problem after elements have been
/// visited.
Result<Done, JsonProblem> visitJsonList(
    std::string_view text, const std::function<void(const SortedJson&)>& visit);

} // namespace brindlex
