#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "checks/Form30.h"
#include "checks/Links.h"
#include "checks/SourceCommands.h"
#include "checks/frmCheckLinks.h"
#include "checks/frmCompress.h"
#include "checks/frmGlobalSearch.h"
#include "checks/frmKeywords.h"
#include "checks/frmOverView.h"
#include "support/ShowSource.h"

#include <QCoreApplication>
#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // The window is drawn while a long command works; the author's keys wait.
    bool KeepDrawing()
    {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        return true;
    }

} // namespace

void frmMain::AddToolCommands(MainMenu::Commands &commands)
{
    const auto onPage = [this](auto command) {
        return [this, command] {
            ForActive([&](frmDocument &page) { page.WithNewestText([&] { command(page); }); });
        };
    };
    // The author is to see what is selected.
    const auto onSelection = [this](auto command) {
        return [this, command] {
            ForActive([&](frmDocument &page) {
                if (BringUpSource(page))
                    command(page);
            });
        };
    };
    const auto format = [&](Format kind) {
        return onSelection([kind](frmDocument &page) { FormatSelection(page, kind, KeepDrawing); });
    };
    commands[u"mnuFormatHiachal"_s] = format(Format::Hierarchical);
    commands[u"mnuCompact"_s] = format(Format::Compact);
    commands[u"mnuSimple"_s] = format(Format::Simple);
    commands[u"mnuLowercase"_s] = onSelection([](frmDocument &page) { LowerSelection(page); });
    commands[u"mnuUpper"_s] = onSelection([](frmDocument &page) { UpperSelection(page); });

    commands[u"mnuStripTags"_s]
        = onPage([](frmDocument &page) { ConvertToPlainText(page, KeepDrawing); });
    commands[u"mnuCompressSource"_s]
        = onPage([this](frmDocument &page) { frmCompress(page, this).exec(); });
    commands[u"mnuKeywords"_s]
        = onPage([this](frmDocument &page) { frmKeywords(page, this).exec(); });
    commands[u"mnuCheckLinks"_s]
        = onPage([this](frmDocument &page) { frmCheckLinks(page, this).exec(); });
    commands[u"mnuPageOverview"_s]
        = onPage([this](frmDocument &page) { frmOverView(page, this).exec(); });
    commands[u"mnuEstimated"_s] = onPage([this](frmDocument &page) { Form30(page, this).exec(); });
    commands[u"mnuEditSearchandReplace"_s] = [this] {
        const frmDocument *page = ActiveForm();
        frmGlobalSearch(page ? LinkFolder(page->Folder()) : QString(), this).exec();
    };
}

} // namespace brenix
