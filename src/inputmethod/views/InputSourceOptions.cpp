#include "inputmethod/views/InputSourceOptions.h"

#include "inputmethod/InputSourceBadge.h"
#include "platform/InputSourceIdentifiers.h"

#include <algorithm>

namespace brindlex {
namespace {

const TextInputSource* sourceWith(
    const InputMethodSettings& settings, const std::string& inputSourceID)
{
    const auto& sources = settings.availableSources();
    const auto found = std::find_if(sources.begin(), sources.end(),
        [&](const TextInputSource& source) { return isSameSource(source.id, inputSourceID); });
    return found == sources.end() ? nullptr : &*found;
}

} // namespace

std::vector<Chooser::Option> inputSourceOptions(
    const InputMethodSettings& settings, const std::string& selected)
{
    std::vector<Chooser::Option> options;
    for (const auto& source : settings.availableSources())
        options.push_back({source.id, QString::fromStdString(source.localizedName),
            QString::fromStdString(inputSourceBadge(source))});
    if (!sourceWith(settings, selected))
        options.push_back({selected, QString::fromStdString(selected), QStringLiteral("?")});
    return options;
}

std::string optionOf(const InputMethodSettings& settings, const std::string& inputSourceID)
{
    const auto* const source = sourceWith(settings, inputSourceID);
    return source ? source->id : inputSourceID;
}

std::string inputSourceName(const InputMethodSettings& settings, const std::string& inputSourceID)
{
    const auto* const source = sourceWith(settings, inputSourceID);
    return source ? source->localizedName : inputSourceID;
}

} // namespace brindlex
