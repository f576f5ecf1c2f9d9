#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// How a search compares texts of a language: without case and diacritics.
class TextFolding {
public:
    /// By the language of a locale such as "tr_TR.UTF-8"; in Turkish and Azerbaijani i and ı are
    /// two letters. An empty text is no language.
    explicit TextFolding(std::string_view locale = {});

    /// The text with Unicode's full case folding ("ß" becomes "ss") and without the marks that are
    /// diacritics, in normal form C. Texts that are canonically equivalent become the same.
    std::string folded(std::string_view text) const;

    bool operator==(const TextFolding&) const = default;

private:
    bool hasDotlessI_;
};

} // namespace brindlex
