#include "app/CommandLine.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "support/Paths.h"
#include "support/WebModule.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

// Long enough for the engine to have drawn what it says it has loaded.
constexpr int PaintTime = 300; // ms

// For scripts that wait for the first picture of a page.
void AnnouncePreview(brenix::frmMain &window)
{
    QObject::connect(
        &window,
        &brenix::frmMain::PreviewPainted,
        &window,
        [&window] {
            QTimer::singleShot(PaintTime, &window, [] {
                std::puts("preview painted");
                std::fflush(stdout);
            });
        },
        Qt::SingleShotConnection);
}

} // namespace

int main(int argc, char **argv)
{
    brenix::PrepareForWebModule();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Brenix"));
    QApplication::setApplicationVersion(QStringLiteral(BRENIX_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);

    auto splash = std::make_unique<brenix::frmSplash>();
    brenix::frmMain window;
    if (qEnvironmentVariableIntValue("BRENIX_ANNOUNCE") != 0)
        AnnouncePreview(window);
    QObject::connect(
        &window, &brenix::frmMain::Closed, &application, &QApplication::quit, Qt::QueuedConnection);
    window.LoadSteps(*splash, brenix::ReadCommandLine(QApplication::arguments().mid(1)));
    splash.reset();
    window.show();
    return QApplication::exec();
}
