#include "clipboard/ClipboardFingerprint.h"

#include <nettle/sha2.h>

#include <array>
#include <cstdint>

namespace brindlex {
namespace {

std::array<std::uint8_t, SHA256_DIGEST_SIZE> sha256(std::string_view bytes)
{
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
    sha256_digest(&context, digest.size(), digest.data());
    return digest;
}

} // namespace

std::string textFingerprint(std::string_view text) { return std::string("text:").append(text); }

std::string imageFingerprint(std::string_view png)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string fingerprint = "image:";
    for (const auto byte : sha256(png)) {
        fingerprint += digits[byte >> 4];
        fingerprint += digits[byte & 0x0F];
    }
    return fingerprint;
}

std::string fileFingerprint(const std::vector<std::string>& paths)
{
    std::string fingerprint = "file:";
    for (const auto& path : paths) {
        if (&path != &paths.front())
            fingerprint += '\n';
        fingerprint += path;
    }
    return fingerprint;
}

} // namespace brindlex
