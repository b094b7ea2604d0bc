#include "support/Paths.h"
#include "tests/support/PrivateHome.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    // A copy of this program in another place says what that place makes of the application
    // directory.
    if (argc == 2 && std::strcmp(argv[1], "--app-directory") == 0) {
        const QCoreApplication application(argc, argv);
        std::puts(brenix::AppDirectory().toLocal8Bit().constData());
        return 0;
    }
    const PrivateHome home;
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
