#pragma once

#include <QObject>

class QPagedPaintDevice;
class QWidget;

namespace brenix {

/// What the print module offers: the system's printer and its dialogs. One printer, with the
/// settings that the author gave it, lives as long as the program.
class PrintModule
{
public:
    virtual ~PrintModule() = default;
    virtual void PageSetup(QWidget *window) = 0;
    /// Asks how to print, and offers to print the selection where there is one. Null when the
    /// author gives up.
    virtual QPagedPaintDevice *AskPrinter(QWidget *window, bool hasSelection) = 0;
};

} // namespace brenix

#define BrenixPrintModuleId "org.brenix.PrintModule/1"
Q_DECLARE_INTERFACE(brenix::PrintModule, BrenixPrintModuleId)
