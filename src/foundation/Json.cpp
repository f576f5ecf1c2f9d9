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

using Event = SortedJson::parse_event_t;

/// The document, of which `keeps` leaves out parts as soon as they have been read.
template <typename Keeps>
Result<SortedJson, JsonProblem> parsed(std::string_view text, Keeps keeps)
{
    // The library takes this byte for the end of the text and would not look at what follows.
    if (text.find('\0') != std::string_view::npos)
        return fail(JsonProblem{"", "is not JSON"});
    bool isTooDeep = false;
    const auto watch = [&](int depth, Event event, SortedJson& part) {
        isTooDeep |= depth > deepestNesting;
        return !isTooDeep && keeps(depth, event, part);
    };
    auto document = SortedJson::parse(text, watch, /*allow_exceptions=*/false);
    if (isTooDeep)
        return fail(JsonProblem{"", "is nested too deeply"});
    if (document.is_discarded())
        return fail(JsonProblem{"", "is not JSON"});
    return document;
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
    return parsed(text, [](int, Event, const SortedJson&) { return true; });
}

Result<Done, JsonProblem> visitJsonList(
    std::string_view text, const std::function<void(const SortedJson&)>& visit)
{
    bool isList = false;
    const auto take = [&](int depth, Event event, const SortedJson& part) {
        isList |= depth == 0 && event == Event::array_start;
        const bool isElement = isList && depth == 1
            && (event == Event::value || event == Event::object_end || event == Event::array_end);
        if (isElement)
            visit(part);
        return !isElement;
    };
    const auto document = parsed(text, take);
    if (!document)
        return fail(document.error());
    if (!isList)
        return fail(JsonProblem{"", "is not a list"});
    return Done{};
}

} // namespace brindlex
