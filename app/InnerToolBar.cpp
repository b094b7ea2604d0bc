#include "app/InnerToolBar.h"

#include <QLayout>
#include <QToolBar>

namespace brenix {

QToolBar *NewInnerToolBar(const QString &name, QToolBar &host)
{
    auto *bar = new QToolBar(&host);
    bar->setObjectName(name);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    host.addWidget(bar);
    return bar;
}

} // namespace brenix
