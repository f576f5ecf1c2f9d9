#include "platform/linux/tray/ProgramIcon.h"

#include "platform/linux/tray/TrayPicture.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ProgramIcon, isThereInEverySizeAsItWasDrawn)
{
    const auto icon = programIcon();

    for (const auto size : {16, 22, 24, 32, 44, 48, 64, 128})
        EXPECT_EQ(icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32),
            trayPicture(size)
                .convertToFormat(QImage::Format_ARGB32_Premultiplied)
                .convertToFormat(QImage::Format_ARGB32))
            << size;
}

} // namespace
} // namespace brindlex
