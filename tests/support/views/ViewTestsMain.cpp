#include <QApplication>
#include <gtest/gtest.h>

// Tests of what is drawn, without a screen: they share the one application object that a process
// may have.
int main(int count, char** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
