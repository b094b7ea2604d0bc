#include "bench/Program.h"

#include "app/CommandLine.h"
#include "app/frmDocument.h"
#include "app/frmSplash.h"
#include "editor/LargeFile.h"
#include "support/SettingsStore.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QHash>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int PaintLimit = 60000; // ms
    constexpr int TimersOfAKey = 12; // ms

} // namespace

PrivateHome::PrivateHome()
{
    if (!m_folder.isValid())
        std::abort();
    for (const char *variable : {"BRENIX_APPDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, m_folder.path().toLocal8Bit());
    brenix::UseSettingsDirectory(m_folder.path());
    brenix::SaveSetting(u"Options", u"Show Tips at Startup", u"0"_s);
    brenix::SaveSetting(u"Settings", u"Startup", u"0"_s);
    brenix::SaveSetting(u"Settings", u"Mode", u"HTML"_s);
    brenix::SaveSetting(u"Settings", u"Bigfile", u"False"_s); // no message for a large page
}

// Counts what is painted anywhere in a control, by the control's name.
class Program::PaintWatch : public QObject
{
public:
    PaintWatch() { qApp->installEventFilter(this); }
    int Count(const QString &control) const { return m_counts.value(control); }

protected:
    bool eventFilter(QObject *target, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && target->parent())
            ++m_counts[target->parent()->objectName()];
        return false;
    }

private:
    QHash<QString, int> m_counts;
};

Program::Program()
{
    brenix::frmSplash splash;
    m_window.LoadSteps(splash, {});
    m_window.setWindowState(Qt::WindowNoState);
    m_window.resize(1000, 700);
    m_window.show();
    m_window.activateWindow();
    Settle();
    m_watch = std::make_unique<PaintWatch>();
}

Program::~Program()
{
    Close();
}

bool Program::Open(const QByteArray &page, int largeFile)
{
    const QString path = m_folder.filePath(u"page%1.html"_s.arg(++m_pages));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size())
        return false;
    file.close();
    brenix::SetLargeFile(largeFile);
    m_window.OpenPath(path);
    return AwaitPaint();
}

brenix::CodeHighlight &Program::Source()
{
    return m_window.ActiveForm()->Source();
}

bool Program::AwaitPaint(const QString &control)
{
    const int before = m_watch->Count(control);
    QElapsedTimer waiting;
    waiting.start();
    while (m_watch->Count(control) == before && waiting.elapsed() < PaintLimit)
        QCoreApplication::processEvents();
    return m_watch->Count(control) > before;
}

void Program::Settle()
{
    QEventLoop loop;
    QTimer::singleShot(TimersOfAKey, &loop, &QEventLoop::quit);
    loop.exec();
}

void Program::Close()
{
    if (brenix::frmDocument *document = m_window.ActiveForm()) {
        document->Modyfied = u"0"_s;
        document->parentWidget()->close();
    }
    Settle();
}

} // namespace bench
