#include "platform/linux/pasteboard/SelectionForms.h"

#include "platform/linux/pasteboard/FileUris.h"
#include "platform/linux/pasteboard/PasteboardTargets.h"
#include "platform/linux/pasteboard/SelectionText.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

constexpr std::array utf8Targets{
    selectionTarget::utf8Text, selectionTarget::plainUtf8Text, selectionTarget::plainText};

/// The pictures that X11 has a name for.
constexpr std::array sentPictures{std::pair{selectionTarget::png, pasteboardType::png},
    std::pair{selectionTarget::tiff, pasteboardType::tiff},
    std::pair{selectionTarget::jpeg, pasteboardType::jpeg}};

/// What a text field receives: the text, or the paths of files, one on each line.
std::optional<std::string> plainTextOf(const PasteboardState& state)
{
    if (state.text || state.filePaths.empty())
        return state.text;
    std::string paths;
    for (const auto& path : state.filePaths)
        paths.append(paths.empty() ? "" : "\n").append(path);
    return paths;
}

} // namespace

std::vector<std::string> selectionTargetsOf(const PasteboardState& state)
{
    std::vector<std::string> targets;
    if (!state.filePaths.empty())
        targets.assign(
            {std::string(selectionTarget::copiedFiles), std::string(selectionTarget::uriList)});
    for (const auto& [target, type] : sentPictures)
        if (state.data.contains(type))
            targets.emplace_back(target);
    if (const auto text = plainTextOf(state)) {
        targets.insert(targets.end(), utf8Targets.begin(), utf8Targets.end());
        if (latin1(*text))
            targets.emplace_back(selectionTarget::latin1Text);
    }
    return targets;
}

std::optional<std::string> selectionForm(const PasteboardState& state, std::string_view target)
{
    if (!state.filePaths.empty() && target == selectionTarget::copiedFiles)
        return copiedFilesOf(state.filePaths);
    if (!state.filePaths.empty() && target == selectionTarget::uriList)
        return uriListOf(state.filePaths);
    for (const auto& [name, type] : sentPictures)
        if (const auto found = state.data.find(type); name == target && found != state.data.end())
            return found->second;
    const auto text = plainTextOf(state);
    if (text && target == selectionTarget::latin1Text)
        return latin1(*text);
    const bool isText = std::ranges::find(utf8Targets, target) != utf8Targets.end();
    return isText ? text : std::nullopt;
}

} // namespace brindlex
