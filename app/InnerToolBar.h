#pragma once

class QString;
class QToolBar;

namespace brenix {

/// A toolbar of its own name within another one, flush with the buttons around it.
QToolBar *NewInnerToolBar(const QString &name, QToolBar &host);

} // namespace brenix
