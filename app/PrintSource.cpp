#include "app/PrintSource.h"

#include "editor/CodeHighlight.h"
#include "support/MessageBoxes.h"
#include "support/Modules.h"
#include "support/PrintModule.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Null, after a message, when this installation cannot print.
    PrintModule *LoadPrintModule()
    {
        static const LoadedModule loaded = LoadModule(u"brenix-print"_s);
        auto *module = qobject_cast<PrintModule *>(loaded.root);
        if (!module)
            MsgBox(u"Can't print.\n\n"_s + loaded.error, Buttons::Ok, Icon::Critical);
        return module;
    }

} // namespace

void PageSetup(QWidget *window)
{
    if (PrintModule *module = LoadPrintModule())
        module->PageSetup(window);
}

void PrintSource(CodeHighlight &source, QWidget *window)
{
    PrintModule *module = LoadPrintModule();
    if (!module)
        return;
    const PrintOrder order = module->AskPrinter(window, source.SelLength() > 0);
    if (order.printer)
        source.SelPrint(order.printer,
                        order.selectionOnly ? CodeHighlight::Printed::Selection
                                            : CodeHighlight::Printed::Page);
}

} // namespace brenix
