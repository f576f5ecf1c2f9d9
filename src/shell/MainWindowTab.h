#pragma once

#include "foundation/JsonEnumeration.h"

#include <array>
#include <type_traits>
#include <utility>

namespace brindlex {

/// The tabs of the main window, in the order in which they stand there.
enum class MainWindowTab { general, finder, keyboard, mouse, clipboard, dictation, about };

constexpr auto storedValues(std::type_identity<MainWindowTab>)
{
    return std::array{
        std::pair{MainWindowTab::general, "General"},
        std::pair{MainWindowTab::finder, "Finder"},
        std::pair{MainWindowTab::keyboard, "Keyboard"},
        std::pair{MainWindowTab::mouse, "Mouse"},
        std::pair{MainWindowTab::clipboard, "Clipboard"},
        std::pair{MainWindowTab::dictation, "Dictation"},
        std::pair{MainWindowTab::about, "About"},
    };
}

} // namespace brindlex
