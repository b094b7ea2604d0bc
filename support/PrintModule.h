#pragma once

#include <QObject>

class QPagedPaintDevice;
class QWidget;

namespace brenix {

/// What the author wants on paper.
struct PrintOrder
{
    QPagedPaintDevice *printer = nullptr; ///< null when the author has given up
    bool selectionOnly = false;
};

/// What the print module offers: the system's printer and its dialogs. One printer, with the
/// settings that the author gave it, lives as long as the program.
class PrintModule
{
public:
    virtual ~PrintModule() = default;
    virtual void PageSetup(QWidget *window) = 0;
    /// Asks how to print, and offers to print the selection where there is one.
    virtual PrintOrder AskPrinter(QWidget *window, bool hasSelection) = 0;
};

} // namespace brenix

#define BrenixPrintModuleId "org.brenix.PrintModule/2"
Q_DECLARE_INTERFACE(brenix::PrintModule, BrenixPrintModuleId)
