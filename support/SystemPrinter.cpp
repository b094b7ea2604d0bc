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

QPagedPaintDevice *SystemPrinter::AskPrinter(QWidget *window, bool hasSelection)
{
    QPrintDialog dialog(&m_printer, window);
    dialog.setWindowTitle(u"Print"_s);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, hasSelection);
    m_printer.setPrintRange(hasSelection ? QPrinter::Selection : QPrinter::AllPages);
    return dialog.exec() == QDialog::Accepted ? &m_printer : nullptr;
}

} // namespace brenix
