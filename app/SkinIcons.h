#pragma once

#include <QIcon>
#include <QStringView>

namespace brenix {

/// The icon of a file name (without ".ico") in the current skin; an empty icon where the skin has
/// none.
QIcon SkinIcon(QStringView name);

/// An icon of the program's own, which no skin replaces.
QIcon ProgramIcon(QStringView name);

} // namespace brenix
