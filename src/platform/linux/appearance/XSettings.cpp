#include "platform/linux/appearance/XSettings.h"

#include "foundation/Text.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr std::uint8_t mostSignificantFirst = 1;

enum class Kind : std::uint8_t { number = 0, text = 1, colour = 2 };

/// Takes bytes off the front. Once there are too few there are none any more.
class Bytes {
public:
    explicit Bytes(std::string_view content) : rest_(content) { }

    bool isIntact() const { return isIntact_; }
    void setOrder(std::uint8_t order) { isReversed_ = order == mostSignificantFirst; }

    std::string_view take(std::size_t count)
    {
        isIntact_ = isIntact_ && count <= rest_.size();
        const auto taken = isIntact_ ? rest_.substr(0, count) : std::string_view();
        rest_.remove_prefix(taken.size());
        return taken;
    }

    /// A number without a sign of so many bytes; 0 when there are too few.
    std::uint32_t number(std::size_t count)
    {
        const auto taken = take(count);
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < taken.size(); ++index) {
            const auto at = isReversed_ ? index : taken.size() - 1 - index;
            value = value << 8 | static_cast<std::uint8_t>(taken[at]);
        }
        return value;
    }

    /// Text of a length, and what fills it up to a multiple of four, which may be missing at the
    /// very end.
    std::string_view text(std::size_t length)
    {
        const auto taken = take(length);
        take(std::min((4 - length % 4) % 4, rest_.size()));
        return taken;
    }

private:
    std::string_view rest_;
    bool isIntact_ = true;
    bool isReversed_ = false;
};

/// Reads one setting and adds it; what is no setting ends the bytes.
void readSetting(Bytes& bytes, XSettings& settings)
{
    const auto kind = static_cast<Kind>(bytes.number(1));
    bytes.take(1);
    auto name = wellFormed(bytes.text(bytes.number(2)));
    // When it changed last.
    bytes.take(4);
    std::variant<std::int32_t, std::string> value;
    if (kind == Kind::number)
        value = static_cast<std::int32_t>(bytes.number(4));
    else if (kind == Kind::text)
        value = wellFormed(bytes.text(bytes.number(4)));
    else
        bytes.take(kind == Kind::colour ? 8 : std::string_view::npos);
    if (bytes.isIntact() && kind != Kind::colour)
        settings.insert_or_assign(std::move(name), std::move(value));
}

template <typename Value>
std::optional<Value> valueOf(const XSettings& settings, std::string_view name)
{
    const auto found = settings.find(name);
    const auto* const value
        = found == settings.end() ? nullptr : std::get_if<Value>(&found->second);
    return value ? std::optional(*value) : std::nullopt;
}

} // namespace

XSettings xSettingsOf(std::string_view content)
{
    Bytes bytes(content);
    bytes.setOrder(static_cast<std::uint8_t>(bytes.number(1)));
    // What fills up, and the number of the change.
    bytes.take(3 + 4);
    XSettings settings;
    for (auto left = bytes.number(4); left > 0 && bytes.isIntact(); --left)
        readSetting(bytes, settings);
    return settings;
}

std::optional<std::string> textOf(const XSettings& settings, std::string_view name)
{
    return valueOf<std::string>(settings, name);
}

std::optional<std::int32_t> numberOf(const XSettings& settings, std::string_view name)
{
    return valueOf<std::int32_t>(settings, name);
}

} // namespace brindlex
