#pragma once

#include <QIcon>
#include <QStringView>

namespace brenix {

/// The icon of a file name (without ".ico") in the current skin; an empty icon where the skin has
/// none.
QIcon SkinIcon(QStringView name);

} // namespace brenix
