#pragma once

#include "support/PrintModule.h"

#include <QPrinter>

namespace brenix {

/// The root object of the print module.
class SystemPrinter final : public QObject, public PrintModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BrenixPrintModuleId)
    Q_INTERFACES(brenix::PrintModule)

public:
    void PageSetup(QWidget *window) override;
    PrintOrder AskPrinter(QWidget *window, bool hasSelection) override;

private:
    QPrinter m_printer{QPrinter::HighResolution};
};

} // namespace brenix
