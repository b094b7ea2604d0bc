#pragma once

#include <QStringList>

namespace brenix {

/// Writes the recent addresses back. A file that cannot be written is told of once while the
/// program runs.
void StoreRecentAddresses(const QStringList &rows);

} // namespace brenix
