#pragma once

#include <QIcon>

#include <functional>

namespace brenix {

/// An icon that `load` gives when it is first drawn; whoever asks for its size gets what he asked
/// with.
QIcon LazyIcon(std::function<QIcon()> load);

} // namespace brenix
