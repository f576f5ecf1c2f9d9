#include "foundation/Uuid.h"

#include "foundation/FatalError.h"
#include "foundation/Text.h"

#include <cerrno>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";

bool isDashBefore(std::size_t byte) { return byte == 4 || byte == 6 || byte == 8 || byte == 10; }

} // namespace

Uuid Uuid::random()
{
    Uuid uuid;
    if (::getentropy(uuid.bytes.data(), uuid.bytes.size()) != 0)
        fatalError("The system gave no random bytes");
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);
    return uuid;
}

std::optional<Uuid> Uuid::fromText(std::string_view text)
{
    if (text.size() != 36)
        return {};
    Uuid uuid;
    std::size_t at = 0;
    for (std::size_t byte = 0; byte < uuid.bytes.size(); ++byte) {
        if (isDashBefore(byte) && text[at++] != '-')
            return {};
        const auto high = hexDigitValue(text[at++]);
        const auto low = hexDigitValue(text[at++]);
        if (!high || !low)
            return {};
        uuid.bytes[byte] = static_cast<std::uint8_t>(*high << 4 | *low);
    }
    return uuid;
}

std::string Uuid::text() const
{
    std::string text;
    text.reserve(36);
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        if (isDashBefore(byte))
            text += '-';
        text += hexDigits[bytes[byte] >> 4];
        text += hexDigits[bytes[byte] & 0x0F];
    }
    return text;
}

} // namespace brindlex

std::size_t std::hash<brindlex::Uuid>::operator()(const brindlex::Uuid& uuid) const noexcept
{
    const auto* bytes = reinterpret_cast<const char*>(uuid.bytes.data());
    return std::hash<std::string_view>{}(std::string_view(bytes, uuid.bytes.size()));
}
