#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// By which the history knows a content again.

/// "text:" and the text.
std::string textFingerprint(std::string_view text);

/// "image:" and the SHA-256 of the bytes in 64 hexadecimal digits in lower case.
std::string imageFingerprint(std::string_view png);

/// "file:" and the paths, with line feeds between them.
std::string fileFingerprint(const std::vector<std::string>& paths);

} // namespace brindlex
