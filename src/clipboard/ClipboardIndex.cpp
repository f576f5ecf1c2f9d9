#include "clipboard/ClipboardIndex.h"

#include "clipboard/ClipboardBlobs.h"
#include "clipboard/ClipboardFileProblem.h"
#include "foundation/FileReading.h"
#include "foundation/FileReplacement.h"
#include "foundation/JsonCoding.h"
#include "foundation/PrivateFolder.h"

#include <cmath>
#include <utility>

namespace brindlex {
namespace {

std::string inWords(const JsonProblem& problem)
{
    return problem.path.empty() ? problem.reason : problem.path + " " + problem.reason;
}

bool isFinite(Date date) { return std::isfinite(date.secondsSinceReferenceDate); }

/// What is wrong with an item that has the form of one.
std::optional<JsonProblem> problemOf(const ClipboardItem& item)
{
    if (!isFinite(item.createdAt))
        return JsonProblem{"createdAt", "is not a finite number"};
    if (item.pinnedAt && !isFinite(*item.pinnedAt))
        return JsonProblem{"pinnedAt", "is not a finite number"};
    if (item.imageBlobName && !isBlobName(*item.imageBlobName))
        return JsonProblem{"imageBlobName", "is not the name of a file"};
    return {};
}

Result<SharedClipboardItem, JsonProblem> itemOf(const SortedJson& document)
{
    const auto item = fromJson<ClipboardItem>(Json(document));
    if (!item)
        return fail(item.error());
    if (const auto problem = problemOf(*item))
        return fail(*problem);
    return std::make_shared<const ClipboardItem>(*item);
}

} // namespace

Result<std::string, std::string> clipboardIndexText(const ClipboardItems& items)
{
    std::string text = "[";
    for (std::size_t index = 0; index < items.size(); ++index) {
        if (auto problem = problemOf(*items[index]))
            return fail(inWords(within(std::to_string(index), *std::move(problem))));
        if (index > 0)
            text += ',';
        text += jsonText(toJson(*items[index]));
    }
    text += ']';
    return text;
}

Result<ClipboardItems, std::string> clipboardItemsOf(std::string_view text)
{
    ClipboardItems items;
    std::optional<JsonProblem> problem;
    const auto visited = visitJsonList(text, [&](const SortedJson& element) {
        if (problem)
            return;
        const auto item = itemOf(element);
        if (item)
            items.push_back(*item);
        else
            problem = within(std::to_string(items.size()), item.error());
    });
    if (!visited)
        return fail(inWords(visited.error()));
    if (problem)
        return fail(inWords(*problem));
    return items;
}

Result<std::optional<ClipboardItems>, std::string> readClipboardIndex(
    const std::filesystem::path& file)
{
    const auto text = readFile(file, largestClipboardIndex);
    if (!text)
        return fail(inWords(text.error()));
    if (!*text)
        return std::optional<ClipboardItems>{};
    const auto items = clipboardItemsOf(**text);
    if (!items)
        return fail(items.error());
    return std::optional(*items);
}

Result<Done, std::string> writeClipboardIndex(
    const std::filesystem::path& file, const ClipboardItems& items, std::size_t largest)
{
    const auto text = clipboardIndexText(items);
    if (!text)
        return fail(text.error());
    if (text->size() > largest)
        return fail("would be larger than " + std::to_string(largest) + " bytes");
    makePrivateFolder(file.parent_path());
    const auto replaced = replaceFile(file, *text);
    if (!replaced)
        return fail(inWords(replaced.error()));
    return Done{};
}

} // namespace brindlex
