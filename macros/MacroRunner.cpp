#include "macros/MacroRunner.h"

#include "macros/MacroInterpreter.h"
#include "macros/PressKeys.h"
#include "support/DocumentModel.h"
#include "support/MessageBoxes.h"
#include "support/ShowSource.h"
#include "support/SourceView.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QProcess>
#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A macro that presses its own shortcut would never come back.
    constexpr int MostInside = 8;

} // namespace

/// One run: the page that it works on, which changes with a new document.
class MacroRunner::Host : public MacroHost
{
public:
    Host(MacroRunner &runner, DocumentModel &page)
        : m_runner(runner)
        , m_page(&page)
    {
    }

    // What the design view holds is newer than the source.
    DocumentModel *Page() override
    {
        const bool isOpen = m_page && m_runner.m_window.isOpen(m_page);
        return isOpen && m_page->Status() != u"Design" ? m_page : nullptr;
    }
    bool LetEventsRun() override
    {
        QCoreApplication::processEvents();
        return GoesOn();
    }
    bool Wait(qint64 milliseconds) override
    {
        return m_runner.Wait(milliseconds, [this] { return GoesOn(); });
    }
    void Command(const QString &menuName) override { m_runner.m_window.command(menuName); }
    void NewHtml() override
    {
        m_runner.m_window.newHtml();
        m_page = m_runner.m_window.activePage();
    }
    void End() override
    {
        m_runner.m_isStopped = true;
        m_runner.m_window.end();
    }
    void Beep() override { QApplication::beep(); }
    QString ClipboardText() override { return QGuiApplication::clipboard()->text(); }
    void SetClipboardText(const QString &text) override
    {
        QGuiApplication::clipboard()->setText(QString(text).replace(u"\r\n"_s, u"\n"_s));
    }
    void SetSearchText(const QString &text) override { m_runner.m_window.setSearchText(text); }
    void PressKeys(const QList<KeyStroke> &keys) override
    {
        // The author's own Esc comes with the events between two keys.
        const QScopedValueRollback presses(m_runner.m_pressesKeys, true);
        brenix::PressKeys(keys, [this] {
            const QScopedValueRollback between(m_runner.m_pressesKeys, false);
            return LetEventsRun();
        });
    }
    bool StartProgram(const QString &program, const QStringList &arguments) override
    {
        return QProcess::startDetached(program, arguments);
    }

private:
    bool GoesOn() { return !m_runner.m_isStopped && Page(); }

    MacroRunner &m_runner;
    DocumentModel *m_page;
};

MacroRunner::MacroRunner(MacroWindow window, QObject *parent)
    : QObject(parent)
    , m_window(std::move(window))
{
    connect(&m_wait, &QTimer::timeout, this, [this] { m_waitDone = true; });
}

void MacroRunner::Start(const QString &name)
{
    QMetaObject::invokeMethod(
        this, [this, name] { Run(name); }, Qt::QueuedConnection);
}

void MacroRunner::Run(const QString &name)
{
    DocumentModel *page = m_window.activePage();
    if (!page || m_running == MostInside)
        return;
    // A macro works on the source, and the author is to see what it does.
    if (!BringUpSource(*page))
        return;
    const MacroFile file = ReadMacroFile(name);
    if (file.error) {
        TellFailure(file.error);
        return;
    }
    page->rtfText().SetFocus();
    RunOn(*page, MacroText(file.page.text));
}

void MacroRunner::RunOn(DocumentModel &page, const QString &macro)
{
    if (m_running++ == 0) {
        m_isStopped = false;
        qApp->installEventFilter(this);
    }
    Host host(*this, page);
    const MacroError error = RunMacro(macro, host);
    if (--m_running == 0) {
        qApp->removeEventFilter(this);
        m_wait.stop();
        m_waitDone = false;
    }
    m_window.finished();
    if (error)
        TellFailure(error);
}

bool MacroRunner::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && !m_pressesKeys
        && static_cast<QKeyEvent &>(*event).key() == Qt::Key_Escape)
        m_isStopped = true;
    return QObject::eventFilter(watched, event);
}

// The timer goes on after the wait: the next one ends with the first beat since.
bool MacroRunner::Wait(qint64 milliseconds, const std::function<bool()> &goOn)
{
    // A timer of 0 would never beat.
    if (milliseconds > 0)
        m_wait.start(int(std::min<qint64>(milliseconds, std::numeric_limits<int>::max())));
    else
        m_waitDone = true;
    while (!m_waitDone) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!goOn())
            return false;
    }
    m_waitDone = false;
    return true;
}

void MacroRunner::OfferFirst()
{
    if (MsgBox(u"You haven't made any macros yet! Do you want to add one now?"_s,
               Buttons::YesNo,
               Icon::Information)
        == Answer::Yes)
        m_window.edit();
}

void MacroRunner::TellFailure(const MacroError &error)
{
    if (MacroNames().isEmpty()) {
        OfferFirst();
        return;
    }
    const QString text = u"There is an error in the macro. Please check your code!\n\n"
                         u"Error message: "_s
        + error.text + u"\nError number: "_s + QString::number(error.number)
        + u"\n Do you want to try to fix the problem?"_s;
    if (MsgBox(text, Buttons::YesNo) == Answer::Yes)
        m_window.edit();
}

} // namespace brenix
