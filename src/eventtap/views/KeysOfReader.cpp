#include "eventtap/views/KeysOfReader.h"

#include <utility>

namespace brindlex {

KeyNaming keysOfReader(const ViewContext& context, KeyCharacters characters)
{
    const auto& texts = context.strings;
    return {
        .modifiers = {.control = texts.text<"keys.control">(),
            .option = texts.text<"keys.option">(),
            .shift = texts.text<"keys.shift">(),
            .command = texts.text<"keys.super">()},
        .characters = std::move(characters),
        .words
        = {.names = {{"Return", texts.text<"keys.return">()}, {"Tab", texts.text<"keys.tab">()},
               {"Space", texts.text<"keys.space">()}, {"Delete", texts.text<"keys.delete">()},
               {"Escape", texts.text<"keys.escape">()}, {"Left", texts.text<"keys.left">()},
               {"Right", texts.text<"keys.right">()}, {"Down", texts.text<"keys.down">()},
               {"Up", texts.text<"keys.up">()}},
            .ofNumber
            = [&texts](std::int64_t keyCode) { return texts.text<"keys.numberFormat">(keyCode); }},
    };
}

} // namespace brindlex
