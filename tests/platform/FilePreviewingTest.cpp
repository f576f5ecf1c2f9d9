#include "platform/FilePreviewing.h"

#include "platform/linux/panels/QtFilePreviewing.h"
#include "platform/simulated/SimulatedFilePreviewing.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <QLabel>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using Files = std::vector<std::filesystem::path>;

class SimulatedPreviewDesk {
public:
    FilePreviewing& previewing() { return previewing_; }
    /// What the user sees; none when there is no preview.
    Files shown() const { return previewing_.shown; }

private:
    SimulatedFilePreviewing previewing_;
};

/// A screen whose previews are seen as windows.
class RealPreviewDesk {
public:
    RealPreviewDesk()
    {
        previewing_.setView([this](const Files& files, const QSize&) {
            files_ = files;
            auto view = std::make_unique<QLabel>();
            view->setFixedSize(100, 100);
            return view;
        });
    }

    FilePreviewing& previewing() { return previewing_; }
    Files shown() const
    {
        loopThroughout(std::chrono::milliseconds(50), [] { return true; });
        return windows_.unmanagedOf(getpid()).size() == 1 ? files_ : Files{};
    }

private:
    XConnection server_;
    DesktopWindows windows_{server_};
    Files files_;
    QtFilePreviewing previewing_;
};

template <typename Desk>
class FilePreviewingContract : public testing::Test {
protected:
    Desk desk;
    FilePreviewing& previewing = desk.previewing();
};

using PreviewDesks = testing::Types<SimulatedPreviewDesk, RealPreviewDesk>;
TYPED_TEST_SUITE(FilePreviewingContract, PreviewDesks);

TYPED_TEST(FilePreviewingContract, showsFilesUntilItIsClosed)
{
    EXPECT_EQ(this->desk.shown(), Files{});
    this->previewing.show({"/a.png", "/b.txt"});
    EXPECT_EQ(this->desk.shown(), (Files{"/a.png", "/b.txt"}));
    this->previewing.close();
    EXPECT_EQ(this->desk.shown(), Files{});
}

TYPED_TEST(FilePreviewingContract, showsOthersInThePlaceOfThoseThatAreShown)
{
    this->previewing.show({"/a.png"});
    this->previewing.show({"/b.txt"});
    EXPECT_EQ(this->desk.shown(), Files{"/b.txt"});
}

TYPED_TEST(FilePreviewingContract, mayBeClosedWhenNothingIsShown)
{
    this->previewing.close();
    this->previewing.show({"/a.png"});
    this->previewing.close();
    this->previewing.close();
    EXPECT_EQ(this->desk.shown(), Files{});
}

} // namespace
} // namespace brindlex
