#include "support/screen/SettingsManager.h"

namespace brindlex {
namespace {

/// Writes numbers in an order of bytes, and text filled up to a multiple of four.
class ContentWriter {
public:
    explicit ContentWriter(bool isMostSignificantFirst) : isReversed_(isMostSignificantFirst) { }

    void number(std::uint32_t value, int bytes)
    {
        for (int index = 0; index < bytes; ++index) {
            const int place = isReversed_ ? bytes - 1 - index : index;
            content_ += static_cast<char>(value >> (8 * place) & 0xff);
        }
    }
    void text(const std::string& text)
    {
        content_ += text;
        content_.resize((content_.size() + 3) / 4 * 4);
    }
    const std::string& content() const { return content_; }

private:
    std::string content_;
    bool isReversed_;
};

} // namespace

std::string settingsContent(const ManagedSettings& settings, bool isMostSignificantFirst)
{
    ContentWriter writer(isMostSignificantFirst);
    writer.number(isMostSignificantFirst, 1);
    writer.text({});
    writer.number(7, 4);
    writer.number(static_cast<std::uint32_t>(settings.size()), 4);
    for (const auto& [name, value] : settings) {
        writer.number(static_cast<std::uint32_t>(value.index()), 1);
        writer.number(0, 1);
        writer.number(static_cast<std::uint32_t>(name.size()), 2);
        writer.text(name);
        writer.number(7, 4);
        if (const auto* const text = std::get_if<std::string>(&value)) {
            writer.number(static_cast<std::uint32_t>(text->size()), 4);
            writer.text(*text);
        } else
            writer.number(static_cast<std::uint32_t>(std::get<std::int32_t>(value)), 4);
    }
    return writer.content();
}

SettingsManager::SettingsManager(const ManagedSettings& settings)
    : window_(xcb_generate_id(server_.get())), property_(server_.atom("_XSETTINGS_SETTINGS"))
{
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, server_.root(), -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    set(settings);
    server_.manage("_XSETTINGS_S0", window_);
}

void SettingsManager::setContent(const std::string& content)
{
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window_, property_, property_, 8,
        static_cast<std::uint32_t>(content.size()), content.data());
    server_.sync();
}

void SettingsManager::clear()
{
    xcb_delete_property(server_.get(), window_, property_);
    server_.sync();
}

} // namespace brindlex
