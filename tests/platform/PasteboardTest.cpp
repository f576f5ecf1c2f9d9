#include "platform/Pasteboard.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedPasteboard.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Texts = std::vector<std::string>;

/// A pasteboard and an application that copies.
struct SimulatedDesk {
    Pasteboard& pasteboard() { return pasteboard_; }
    void copyText(const std::string& text) { pasteboard_.copyText(text); }
    void copyFiles(const Texts& paths) { pasteboard_.copyFiles(paths); }
    void copyPng(const std::string& bytes) { pasteboard_.copyData(pasteboardType::png, bytes); }
    /// Lets all that was copied arrive.
    void settle() { mainThread_.runUntilIdle(); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedPasteboard pasteboard_{mainThread_};
};

template <typename Desk>
class PasteboardContract : public testing::Test {
protected:
    Desk desk;
    Pasteboard& pasteboard = desk.pasteboard();
};

using Desks = testing::Types<SimulatedDesk>;
TYPED_TEST_SUITE(PasteboardContract, Desks);

TYPED_TEST(PasteboardContract, isEmptyUntilSomebodyCopies)
{
    EXPECT_EQ(this->pasteboard.types(), Texts{});
    EXPECT_EQ(this->pasteboard.text(), std::nullopt);
    EXPECT_EQ(this->pasteboard.filePaths(), Texts{});
    EXPECT_EQ(this->pasteboard.data(pasteboardType::png), nullptr);
}

TYPED_TEST(PasteboardContract, hasTheTextThatWasCopied)
{
    this->desk.copyText("é漢🎛\n");
    this->desk.settle();
    const auto types = this->pasteboard.types();
    EXPECT_NE(std::find(types.begin(), types.end(), pasteboardType::plainText), types.end());
    EXPECT_EQ(this->pasteboard.text(), "é漢🎛\n");
    EXPECT_EQ(this->pasteboard.filePaths(), Texts{});
    EXPECT_EQ(this->pasteboard.data(pasteboardType::png), nullptr);
}

TYPED_TEST(PasteboardContract, hasTheFilesThatWereCopied)
{
    this->desk.copyFiles({"/home/user/a b", "/tmp/100%"});
    this->desk.settle();
    const auto types = this->pasteboard.types();
    EXPECT_NE(std::find(types.begin(), types.end(), pasteboardType::fileURL), types.end());
    EXPECT_EQ(this->pasteboard.filePaths(), (Texts{"/home/user/a b", "/tmp/100%"}));
}

TYPED_TEST(PasteboardContract, hasThePictureThatWasCopied)
{
    const std::string bytes("PNG\0\xFF", 5);
    this->desk.copyPng(bytes);
    this->desk.settle();
    EXPECT_EQ(this->pasteboard.types(), Texts{"public.png"});
    ASSERT_TRUE(this->pasteboard.data(pasteboardType::png));
    EXPECT_EQ(*this->pasteboard.data(pasteboardType::png), bytes);
    EXPECT_EQ(this->pasteboard.data(pasteboardType::tiff), nullptr);
}

TYPED_TEST(PasteboardContract, hasOnlyWellFormedText)
{
    this->desk.copyText("a\xFFz");
    this->desk.settle();
    EXPECT_EQ(this->pasteboard.text(), "a\uFFFDz");
}

TYPED_TEST(PasteboardContract, countsEachChange)
{
    auto last = this->pasteboard.changeCount();
    for (const char* text : {"one", "two", "two"}) {
        this->desk.copyText(text);
        this->desk.settle();
        EXPECT_GT(this->pasteboard.changeCount(), last);
        last = this->pasteboard.changeCount();
    }
    this->desk.settle();
    EXPECT_EQ(this->pasteboard.changeCount(), last);
}

TYPED_TEST(PasteboardContract, notifiesOfChangesOnceTheyCanBeRead)
{
    Texts seen;
    auto subscription = this->pasteboard.observeChanges(
        [&] { seen.push_back(this->pasteboard.text().value_or("none")); });
    this->desk.settle();
    EXPECT_EQ(seen, Texts{});
    this->desk.copyText("one");
    this->desk.settle();
    this->desk.copyText("two");
    this->desk.settle();
    EXPECT_EQ(seen, (Texts{"one", "two"}));
    subscription.reset();
    this->desk.copyText("three");
    this->desk.settle();
    EXPECT_EQ(seen.size(), 2U);
}

TYPED_TEST(PasteboardContract, letsAnObserverEndInsideItsHandler)
{
    int notified = 0;
    Subscription subscription;
    subscription = this->pasteboard.observeChanges([&] {
        ++notified;
        subscription.reset();
    });
    this->desk.copyText("one");
    this->desk.settle();
    this->desk.copyText("two");
    this->desk.settle();
    EXPECT_EQ(notified, 1);
}

TYPED_TEST(PasteboardContract, hasWhatTheProgramWrites)
{
    auto& pasteboard = this->pasteboard;
    pasteboard.write(PasteboardContent::Text{"text"});
    EXPECT_EQ(pasteboard.text(), "text");

    pasteboard.write(PasteboardContent::Files{{"/a b", "/c"}});
    EXPECT_EQ(pasteboard.filePaths(), (Texts{"/a b", "/c"}));

    pasteboard.write(PasteboardContent::Data{std::string(pasteboardType::png), "PNG"});
    EXPECT_EQ(*pasteboard.data(pasteboardType::png), "PNG");
    EXPECT_EQ(pasteboard.filePaths(), Texts{});

    pasteboard.write(PasteboardContent::Nothing{});
    EXPECT_EQ(pasteboard.types(), Texts{});
    EXPECT_EQ(pasteboard.data(pasteboardType::png), nullptr);
}

TYPED_TEST(PasteboardContract, countsTheProgramsOwnWritesAndNotifiesOfThemAfterwards)
{
    int notified = 0;
    const auto subscription = this->pasteboard.observeChanges([&] { ++notified; });
    const auto before = this->pasteboard.changeCount();
    this->pasteboard.write(PasteboardContent::Text{"text"});
    EXPECT_GT(this->pasteboard.changeCount(), before);
    EXPECT_EQ(notified, 0);
    this->desk.settle();
    EXPECT_EQ(notified, 1);
}

} // namespace
} // namespace brindlex
