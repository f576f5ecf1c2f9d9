#include "platform/Pasteboard.h"

#include "platform/linux/pasteboard/FileUris.h"
#include "platform/linux/pasteboard/X11Pasteboard.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedPasteboard.h"
#include "support/clipboard/SelectionOwner.h"
#include "support/loops/QtLoop.h"
#include "support/screen/VirtualDesktop.h"

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

/// The clipboard of a real X server and an application that owns it.
class X11Desk {
public:
    Pasteboard& pasteboard() { return pasteboard_; }
    void copyText(const std::string& text) { copy({{"UTF8_STRING", text}}); }
    void copyFiles(const Texts& paths) { copy({{"text/uri-list", uriListOf(paths)}}); }
    void copyPng(const std::string& bytes) { copy({{"image/png", bytes}}); }
    void settle()
    {
        EXPECT_TRUE(loop_.runUntil([&] { return pasteboard_.changeCount() > countBeforeCopy_; }));
        bool isIdle = false;
        loop_.mainThread().post([&] { isIdle = true; });
        loop_.runUntil([&] { return isIdle; });
    }

private:
    void copy(const std::map<std::string, std::string>& contents)
    {
        countBeforeCopy_ = pasteboard_.changeCount();
        application_ = std::make_unique<SelectionOwner>(SelectionOwner::Offer{contents});
    }

    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    QtLoop loop_;
    X11Pasteboard pasteboard_{loop_.mainThread()};
    std::int64_t countBeforeCopy_ = -1;
    std::unique_ptr<SelectionOwner> application_;
};

template <typename Desk>
class PasteboardContract : public testing::Test {
protected:
    Desk desk;
    Pasteboard& pasteboard = desk.pasteboard();
    /// Contents are fetched for observers only.
    Subscription observed = pasteboard.observeChanges([] {});
};

using Desks = testing::Types<SimulatedDesk, X11Desk>;
class DeskNames {
public:
    template <typename Desk>
    static std::string GetName(int)
    {
        return std::is_same_v<Desk, X11Desk> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(PasteboardContract, Desks, DeskNames);

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

TYPED_TEST(PasteboardContract, countsWhatIsCopiedWhileNobodyObservesAndDoesNotReadIt)
{
    this->observed.reset();
    const auto before = this->pasteboard.changeCount();
    this->desk.copyText("text");
    this->desk.settle();
    EXPECT_GT(this->pasteboard.changeCount(), before);
    EXPECT_EQ(this->pasteboard.types(), Texts{});
    EXPECT_EQ(this->pasteboard.text(), std::nullopt);

    this->observed = this->pasteboard.observeChanges([] {});
    this->desk.copyText("another");
    this->desk.settle();
    EXPECT_EQ(this->pasteboard.text(), "another");
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
