#pragma once

#include <QStringList>

namespace brenix {

/// The options of Tidy that the script editor offers to insert, in the order of its menu.
QStringList TidyOptionNames();

} // namespace brenix
