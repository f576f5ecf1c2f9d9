#pragma once

#include "clipboard/ClipboardItem.h"
#include "foundation/TextFolding.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// One word of what the user looks for, folded.
struct ClipboardSearchToken {
    std::string text{};
    /// The same, a reader's characters each.
    std::vector<std::string> characters{};

    bool operator==(const ClipboardSearchToken&) const = default;
};

/// The words of what the user has typed, between white space; none where there is nothing else.
std::vector<ClipboardSearchToken> clipboardSearchTokens(
    std::string_view query, const TextFolding& folding);

/// All by which an item is found: its text, its paths and the application that it is from.
std::string searchableText(const ClipboardItem& item);

/// The text by which an item is found, folded, in the form in which it is searched fast.
class ClipboardSearchText {
public:
    ClipboardSearchText(const ClipboardItem& item, const TextFolding& folding);

    /// Whether the text contains the token, or has its characters in their order with any others
    /// between them.
    bool passes(const ClipboardSearchToken& token) const;

private:
    bool hasCharactersOf(const ClipboardSearchToken& token) const;

    std::string text_;
    /// Where the text's characters begin, and its end. Empty where each character is one scalar.
    std::vector<std::size_t> bounds_;
};

} // namespace brindlex
