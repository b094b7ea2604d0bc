#include "support/SystemPrinter.h"

#include <QPageSetupDialog>
#include <QPrintDialog>

using namespace Qt::StringLiterals;

namespace brenix {

void SystemPrinter::PageSetup(QWidget *window)
{
    QPageSetupDialog dialog(&m_printer, window);
    dialog.setWindowTitle(u"Page Setup"_s);
    dialog.exec();
}

PrintOrder SystemPrinter::AskPrinter(QWidget *window, bool hasSelection)
{
    QPrintDialog dialog(&m_printer, window);
    dialog.setWindowTitle(u"Print"_s);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, hasSelection);
    m_printer.setPrintRange(hasSelection ? QPrinter::Selection : QPrinter::AllPages);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {&m_printer, m_printer.printRange() == QPrinter::Selection};
}

} // namespace brenix
