#include "tests/support/PrivateHome.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    const PrivateHome home;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
