#include "support/screen/VirtualDesktop.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

namespace {

/// The one that BRINDLEX_WINDOW_MANAGER names, as far as it matters which.
brindlex::WindowManager chosenWindowManager()
{
    const auto* const name = std::getenv("BRINDLEX_WINDOW_MANAGER");
    const bool isXfwm4 = name && std::string_view(name) == "xfwm4";
    return isXfwm4 ? brindlex::WindowManager::xfwm4 : brindlex::WindowManager::quiet;
}

} // namespace

// Tests of what is on the screen: they share one desktop and the one application object that a
// process may have.
int main(int count, char** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const brindlex::VirtualDesktop desktop({.windowManager = chosenWindowManager()});
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
