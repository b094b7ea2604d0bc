#pragma once

#include "app/frmMain.h"
#include "editor/CodeHighlight.h"

#include <QTemporaryDir>

namespace bench {

/// Settings and data of this run alone.
class PrivateHome
{
public:
    PrivateHome();

private:
    QTemporaryDir m_folder;
};

/// The program's main window, shown without a screen, in HTML view.
class Program
{
public:
    Program();
    ~Program();

    /// Opens a page as the user does, coloured when it has at most `largeFile` characters. False
    /// when it was not painted in good time.
    bool Open(const QByteArray &page, int largeFile);
    brenix::CodeHighlight &Source();
    /// Lets the program run until it has painted a control, the source view or a list over it, at
    /// least once and has nothing left to do. False when it was not painted in good time.
    bool AwaitPaint(const QString &control = QStringLiteral("rtfText"));
    /// Lets the timers run out that follow a key.
    void Settle();
    void Close();

private:
    class PaintWatch;

    QTemporaryDir m_folder;
    brenix::frmMain m_window;
    std::unique_ptr<PaintWatch> m_watch;
    int m_pages = 0;
};

} // namespace bench
