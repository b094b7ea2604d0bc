#pragma once

#include "checks/Pulse.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The texts of clipboard elements as a file holds them: each as it is, with a line end behind it.
QString ClipboardFileText(const QStringList &elements);

/// The fields of such a file in their order, of which a text with a comma or a line end gave
/// several; of more than `most` the last ones. Any text is a file. Stopped, it gives those found
/// until then.
QStringList ClipboardElements(QStringView fileText, qsizetype most, GoOn goOn = {});

} // namespace brenix
