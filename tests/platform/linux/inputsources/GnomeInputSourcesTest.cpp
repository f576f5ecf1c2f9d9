#include "platform/linux/inputsources/GnomeInputSources.h"

#include "support/loops/LoopUntil.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace brindlex {
namespace {

using Sources = std::vector<GnomeInputSource>;

IBusEngine named(const std::string& name)
{
    IBusEngine engine;
    engine.name = name;
    return engine;
}

TEST(GnomeInputSources, areReadAsTheSettingsPrintThem)
{
    EXPECT_EQ(gnomeInputSources("[('xkb', 'us'), ('ibus', 'libpinyin'), ('xkb', 'de+neo')]\n"),
        (Sources{{"xkb", "us"}, {"ibus", "libpinyin"}, {"xkb", "de+neo"}}));
    EXPECT_EQ(gnomeInputSources("@a(ss) []"), Sources());
}

TEST(GnomeInputSources, areNoneInWhatIsNoList)
{
    for (const auto text : {"", "'", "''", "('xkb'", "['xkb', 'us", "nothing"})
        EXPECT_EQ(gnomeInputSources(text), Sources()) << text;
}

TEST(GnomeInputSources, areEnginesByLayoutWhateverItsLanguageAndByName)
{
    const std::vector<IBusEngine> engines{named("xkb:de::ger"), named("xkb:de:neo:ger"),
        named("libpinyin"), named("us"), named("xkb:us::eng")};
    const auto enginesOf = [&](const Sources& sources) { return enginesFor(sources, engines); };

    EXPECT_EQ(enginesOf({{"ibus", "libpinyin"}, {"xkb", "de+neo"}, {"xkb", "us"}, {"xkb", "de"}}),
        (QStringList{"libpinyin", "xkb:de:neo:ger", "xkb:us::eng", "xkb:de::ger"}));
    EXPECT_EQ(enginesOf({{"xkb", "fr"}, {"ibus", "anthy"}, {"other", "libpinyin"}}), QStringList());
}

TEST(GnomeInputSources, areNoneWithoutTheProgramThatReadsSettings)
{
    const std::string path = std::getenv("PATH");
    ::setenv("PATH", "/nowhere", 1);
    QObject context;
    int replies = 0;
    Sources read{{"xkb", "us"}};
    readGnomeInputSources(&context, [&](const Sources& sources) {
        ++replies;
        read = sources;
    });
    EXPECT_TRUE(loopUntil([&] { return replies == 1; }));
    ::setenv("PATH", path.c_str(), 1);
    EXPECT_EQ(read, Sources());
}

} // namespace
} // namespace brindlex
