#pragma once

#include "app/CommandLine.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "editor/CodeHighlight.h"
#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"
#include "tests/support/Input.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/WaitFor.h"
#include "tests/support/WithFolder.h"

#include <QAction>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabBar>

using namespace Qt::StringLiterals;

/// A started main window with a home of its own, whose boxes are answered. Nothing is opened at the
/// start and no tip or notice is shown, unless a test sets so.
class MainWindowFixture : public testing::Test, protected WithFolder
{
protected:
    MainWindowFixture()
    {
        Set(u"Options/Show Tips at Startup", u"0");
        Set(u"ShowOnlyOnce/Open", u"1");
        Set(u"Settings/Startup", u"6");
    }
    ~MainWindowFixture() override { Stop(); }

    static void Set(QStringView key, QStringView value)
    {
        const qsizetype slash = key.indexOf(u'/');
        brenix::SaveSetting(key.left(slash), key.mid(slash + 1), value.toString());
    }
    static QString Get(QStringView key)
    {
        const qsizetype slash = key.indexOf(u'/');
        return brenix::GetSetting(key.left(slash), key.mid(slash + 1), u"(missing)"_s);
    }

    void Start(const QStringList &arguments = {})
    {
        brenix::frmSplash splash;
        splash.show();
        window = std::make_unique<brenix::frmMain>();
        window->LoadSteps(splash, brenix::ReadCommandLine(arguments));
        window->show();
        Settle();
    }
    /// Closes everything without saving.
    void Stop()
    {
        if (!window)
            return;
        boxes.answer = brenix::Answer::No;
        window->close();
        Settle();
        window.reset();
    }

    template <typename Type> Type &Find(const QString &name)
    {
        auto *found = window->findChild<Type *>(name);
        if (!found)
            qFatal("no %s", qPrintable(name));
        return *found;
    }
    void Trigger(const QString &action)
    {
        Find<QAction>(action).trigger();
        Settle();
    }
    brenix::frmDocument &Active()
    {
        if (!window->ActiveForm())
            qFatal("no document is active");
        return *window->ActiveForm();
    }
    /// In the order of their making.
    QList<brenix::frmDocument *> Documents()
    {
        QList<brenix::frmDocument *> documents;
        for (const QMdiSubWindow *child : Find<QMdiArea>(u"MDIForm"_s).subWindowList())
            documents.append(qobject_cast<brenix::frmDocument *>(child->widget()));
        return documents;
    }
    QStringList Captions()
    {
        QStringList captions;
        for (const brenix::frmDocument *document : Documents())
            captions.append(document->Caption());
        return captions;
    }

private:
    const FreshHome m_home;

protected:
    ScriptedBoxes boxes;
    std::unique_ptr<brenix::frmMain> window;
};
