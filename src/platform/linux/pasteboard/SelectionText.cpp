#include "platform/linux/pasteboard/SelectionText.h"

#include "foundation/Text.h"
#include "platform/linux/pasteboard/PasteboardTargets.h"

namespace brindlex {
namespace {

/// The first byte of the characters from U+0080 to U+00BF in UTF-8; those up to U+00FF have the
/// next one.
constexpr unsigned char firstOfUpperHalf = 0xC2;

std::string textOfLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            text += character;
            continue;
        }
        text += static_cast<char>(firstOfUpperHalf + (byte >= 0xC0 ? 1 : 0));
        text += static_cast<char>(byte & 0xBF);
    }
    return text;
}

bool saysThatItIsUtf8(std::string_view target)
{
    return target == selectionTarget::utf8Text
        || lowercased(target) == selectionTarget::plainUtf8Text;
}

} // namespace

std::string textOfSelection(std::string_view target, std::string_view bytes)
{
    bytes = bytes.substr(0, bytes.find_last_not_of('\0') + 1);
    if (isWellFormed(bytes))
        return std::string(bytes);
    return saysThatItIsUtf8(target) ? wellFormed(bytes) : textOfLatin1(bytes);
}

std::optional<std::string> latin1(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        const bool isUpper = byte == firstOfUpperHalf || byte == firstOfUpperHalf + 1;
        if (byte < 0x80)
            bytes += text[index];
        else if (isUpper && index + 1 < text.size())
            bytes += static_cast<char>(
                static_cast<unsigned char>(text[++index]) | (byte - firstOfUpperHalf) << 6);
        else
            return {};
    }
    return bytes;
}

} // namespace brindlex
