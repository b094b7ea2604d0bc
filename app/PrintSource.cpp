#include "app/PrintSource.h"

#include "editor/CodeHighlight.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Made when first asked for: looking for printers takes time.
    QPrinter &Printer()
    {
        static QPrinter printer(QPrinter::HighResolution);
        return printer;
    }

} // namespace

void PageSetup(QWidget *window)
{
    QPageSetupDialog dialog(&Printer(), window);
    dialog.setWindowTitle(u"Page Setup"_s);
    dialog.exec();
}

void PrintSource(CodeHighlight &source, QWidget *window)
{
    QPrintDialog dialog(&Printer(), window);
    dialog.setWindowTitle(u"Print"_s);
    const bool selection = source.SelLength() > 0;
    dialog.setOption(QAbstractPrintDialog::PrintSelection, selection);
    Printer().setPrintRange(selection ? QPrinter::Selection : QPrinter::AllPages);
    if (dialog.exec() == QDialog::Accepted)
        source.SelPrint(&Printer());
}

} // namespace brenix
