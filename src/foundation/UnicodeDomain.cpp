#include "foundation/UnicodeDomain.h"

#include <unicode/bytestream.h>
#include <unicode/idna.h>
#include <unicode/stringpiece.h>

#include <cstdint>
#include <memory>

namespace brindlex {
namespace {

constexpr std::string_view encodedLabel = "xn--";

const icu::IDNA* decoder()
{
    static const std::unique_ptr<icu::IDNA> shared = [] {
        auto status = U_ZERO_ERROR;
        return std::unique_ptr<icu::IDNA>(
            icu::IDNA::createUTS46Instance(UIDNA_NONTRANSITIONAL_TO_UNICODE, status));
    }();
    return shared.get();
}

} // namespace

std::string unicodeDomain(std::string_view domain)
{
    std::string unchanged(domain);
    if (domain.find(encodedLabel) == std::string_view::npos || !decoder())
        return unchanged;
    std::string decoded;
    icu::StringByteSink<std::string> sink(&decoded);
    icu::IDNAInfo info;
    auto status = U_ZERO_ERROR;
    decoder()->nameToUnicodeUTF8(
        icu::StringPiece(domain.data(), static_cast<std::int32_t>(domain.size())), sink, info,
        status);
    return U_FAILURE(status) || info.hasErrors() ? unchanged : decoded;
}

} // namespace brindlex
