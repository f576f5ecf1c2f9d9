#include "support/views/ScreenGallery.h"

#include "support/views/AccessibleTree.h"
#include "support/views/ScopedFont.h"
#include "support/views/TextFit.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/TextSize.h"

#include <QComboBox>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>

namespace brindlex {
namespace {

const std::vector<std::string> allLanguages{
    "en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"};

/// Every text a third longer than the English one, as a test of what translators may need.
StringCatalogue stretchedCatalogue()
{
    nlohmann::json texts;
    for (const auto& row : catalogueTable) {
        std::string text(row.defaultValue);
        const bool isTab = row.key.starts_with("tab.");
        text.insert(text.size(), isTab ? 0 : text.size() / 3, 'x');
        texts[std::string(row.key)] = text;
    }
    return StringCatalogue("en", {texts.dump()});
}

std::string contentOfFile(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

class ScreenGalleryInLanguage : public testing::TestWithParam<std::string> { };

TEST_P(ScreenGalleryInLanguage, cutsOffNoTextOnAnyScreen)
{
    for (const auto brightness : {Brightness::light, Brightness::dark})
        for (const auto& name : ScreenGallery::names()) {
            ScreenGallery gallery(StringCatalogue(GetParam()), brightness);
            const auto window = gallery.show(name);
            EXPECT_EQ(textFaults(*window), std::vector<std::string>{}) << name;
        }
}

INSTANTIATE_TEST_SUITE_P(
    All, ScreenGalleryInLanguage, testing::ValuesIn(allLanguages), [](const auto& language) {
        auto name = language.param;
        std::erase(name, '-');
        return name;
    });

TEST(ScreenGallery, hasRoomForLongerWords)
{
    for (const auto& name : ScreenGallery::names()) {
        ScreenGallery gallery(stretchedCatalogue());
        const auto window = gallery.show(name);
        EXPECT_EQ(textFaults(*window), std::vector<std::string>{}) << name;
    }
}

TEST(ScreenGallery, hasRoomForWordsOfDoubleSize)
{
    const ScopedFont large(2);
    for (const auto& language : {"en", "de", "zh-Hans"})
        for (const auto& name : ScreenGallery::names()) {
            ScreenGallery gallery{StringCatalogue(language)};
            const auto window = gallery.show(name);
            QApplication::processEvents();
            EXPECT_EQ(textFaults(*window), std::vector<std::string>{}) << name << " " << language;
        }
}

/// How large the words of a window are, in their order.
std::vector<double> wordSizes(const QWidget& window)
{
    std::vector<double> sizes;
    for (const auto* const widget : window.findChildren<QWidget*>())
        if (dynamic_cast<const TextLabel*>(widget) || dynamic_cast<const QComboBox*>(widget))
            sizes.push_back(widget->font().pointSizeF());
    return sizes;
}

TEST(ScreenGallery, followsTheFontOfTheDesktop)
{
    for (const auto& name : ScreenGallery::names()) {
        ScreenGallery gallery(StringCatalogue("en"));
        const auto open = gallery.show(name);
        const ScopedFont large(2);
        QApplication::processEvents();
        if (name == "logs")
            open->resize(grownWithText(open->size()));
        QApplication::processEvents();
        EXPECT_EQ(textFaults(*open), std::vector<std::string>{}) << name;
        ScreenGallery later(StringCatalogue("en"));
        EXPECT_EQ(wordSizes(*open), wordSizes(*later.show(name))) << name;
    }
}

/// A change of a screen that is meant changes its file, too: the failure prints what to put there.
TEST(ScreenGallery, tellsAScreenReaderWhatTheEyesSee)
{
    for (const auto& name : ScreenGallery::names()) {
        ScreenGallery gallery(StringCatalogue("en"));
        const auto window = gallery.show(name);
        EXPECT_EQ(accessibleTree(*window),
            contentOfFile(std::filesystem::path(ACCESSIBLE_TREES) / (name + ".txt")))
            << name;
    }
}

} // namespace
} // namespace brindlex
