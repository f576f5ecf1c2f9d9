#include "platform/PasteboardState.h"

#include "foundation/Text.h"

#include <utility>

namespace brindlex {

PasteboardState stateOf(PasteboardContent::Any content)
{
    return match(
        std::move(content), [](const PasteboardContent::Nothing&) { return PasteboardState{}; },
        [](const PasteboardContent::Text& text) {
            return PasteboardState{
                .types = {std::string(pasteboardType::plainText)}, .text = wellFormed(text.text)};
        },
        [](PasteboardContent::Files&& files) {
            return PasteboardState{.types = {std::string(pasteboardType::fileURL)},
                .filePaths = std::move(files.paths)};
        },
        [](PasteboardContent::Data&& data) {
            return PasteboardState{
                .types = {data.type}, .data = {{data.type, std::move(data.bytes)}}};
        });
}

} // namespace brindlex
