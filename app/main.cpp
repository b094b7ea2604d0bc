#include "app/CommandLine.h"
#include "app/LazyIconStyle.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "support/Paths.h"
#include "support/WebModule.h"

#include <QApplication>
#include <QPalette>
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

// Some desktops give the colour of text and leave that of placeholders as it is for dark text.
void MakePlaceholdersReadable()
{
    const QPalette system = QApplication::palette();
    const int base = system.color(QPalette::Base).lightness();
    const bool isTextLight = system.color(QPalette::Text).lightness() > base;
    const bool isPlaceholderLight = system.color(QPalette::PlaceholderText).lightness() > base;
    if (isTextLight == isPlaceholderLight)
        return;
    QColor ink = system.color(QPalette::Text);
    ink.setAlphaF(0.5F);
    QPalette mended;
    mended.setColor(QPalette::PlaceholderText, ink);
    QApplication::setPalette(mended);
}

} // namespace

int main(int argc, char **argv)
{
    brenix::PrepareForWebModule();
#ifdef Q_OS_LINUX
    // A menu of the desktop's would be asked for over the session bus at each start.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
#endif
    QApplication application(argc, argv);
    QApplication::setStyle(new brenix::LazyIconStyle);
    QApplication::setApplicationName(QStringLiteral("Brenix"));
    QApplication::setApplicationVersion(QStringLiteral(BRENIX_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    MakePlaceholdersReadable();

    auto splash = std::make_unique<brenix::frmSplash>();
    brenix::frmMain window;
    if (qEnvironmentVariableIntValue("BRENIX_ANNOUNCE") != 0)
        AnnouncePreview(window);
    QObject::connect(
        &window, &brenix::frmMain::Closed, &application, &QApplication::quit, Qt::QueuedConnection);
    // Quitting would close the windows first, which ask for their pages.
    QObject::connect(&window, &brenix::frmMain::Ended, [] { QApplication::exit(); });
    window.LoadSteps(*splash, brenix::ReadCommandLine(QApplication::arguments().mid(1)));
    splash.reset();
    return QApplication::exec();
}
