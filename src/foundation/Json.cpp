#include "foundation/Json.h"

#include <cstddef>
#include <utility>

namespace brindlex {
namespace {

/// Documents from outside nest no deeper than this; the library's own handling of deeper ones is
/// recursive and would exhaust the stack.
constexpr int deepestNesting = 512;

std::string dumped(const Json& document, int indentation)
{
    return document.dump(indentation, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace

std::string jsonText(const Json& document) { return dumped(document, -1); }

std::string prettyJsonText(const Json& document) { return dumped(document, 2); }

Result<Json, JsonProblem> parseJson(std::string_view text)
{
    // Read straight into an object in the order of insertion, each key would cost a look at all
    // others.
    const auto document = parseSortedJson(text);
    if (!document)
        return fail(document.error());
    return Json(*document);
}

Result<SortedJson, JsonProblem> parseSortedJson(std::string_view text)
{
    // The library takes this byte for the end of the text and would not look at what follows.
    if (text.find('\0') != std::string_view::npos)
        return fail(JsonProblem{"", "is not JSON"});
    bool isTooDeep = false;
    const auto watchDepth = [&](int depth, SortedJson::parse_event_t, SortedJson&) {
        isTooDeep |= depth > deepestNesting;
        return !isTooDeep;
    };
    auto document = SortedJson::parse(text, watchDepth, /*allow_exceptions=*/false);
    if (isTooDeep)
        return fail(JsonProblem{"", "is nested too deeply"});
    if (document.is_discarded())
        return fail(JsonProblem{"", "is not JSON"});
    return document;
}

} // namespace brindlex
