#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int count, char** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
