#include "inputmethod/TextInputSourceService.h"

#include "log/Log.h"

namespace brindlex {
namespace {

InputSourceFilter selectableKeyboards()
{
    InputSourceFilter filter;
    filter.category = keyboardInputSourceCategory;
    filter.isSelectCapable = true;
    filter.isEnabled = true;
    return filter;
}

} // namespace

TextInputSourceService::TextInputSourceService(KeyboardInputSources& sources)
    : sources_(sources) { }

bool TextInputSourceService::isExcluded(std::string_view id)
{
    return id == "com.apple.CharacterPaletteIM"
        || id == "com.apple.inputmethod.EmojiFunctionRowItem";
}

std::optional<TextInputSource> TextInputSourceService::textInputSource(
    const InputSourceProperties& source)
{
    if (!source.id || isExcluded(*source.id) || source.category != keyboardInputSourceCategory)
        return {};
    return TextInputSource{*source.id, source.localizedName.value_or(*source.id),
        source.isSelectCapable.value_or(true), source.isEnabled.value_or(true)};
}

std::optional<TextInputSource> TextInputSourceService::current() const
{
    const auto source = sources_.current();
    if (!source)
        return {};
    return textInputSource(*source);
}

std::vector<TextInputSource> TextInputSourceService::availableSources() const
{
    std::vector<TextInputSource> available;
    for (const auto& source :
        sources_.list(selectableKeyboards()).value_or(std::vector<InputSourceProperties>{}))
        if (const auto record = textInputSource(source))
            available.push_back(*record);
    return available;
}

bool TextInputSourceService::selectInputSource(const std::string& id) const
{
    if (isExcluded(id))
        return false;
    auto filter = selectableKeyboards();
    filter.id = id;
    const auto found = sources_.list(filter);
    if (!found || found->empty())
        return false;
    const auto status = sources_.select(found->front());
    if (status == 0)
        return true;
    Log::warn("TISSelectInputSource(" + id + ") failed with OSStatus " + std::to_string(status)
            + "; retrying once",
        logCategory::inputMethod);
    return sources_.select(found->front()) == 0;
}

} // namespace brindlex
