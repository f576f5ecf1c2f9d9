#include "support/screen/VirtualDesktop.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

// Tests of what is on the screen: they share one desktop and the one application object that a
// process may have.
int main(int count, char** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const brindlex::VirtualDesktop desktop;
    const QGuiApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
