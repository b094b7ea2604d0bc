#pragma once

#include <QString>

#include <functional>

namespace brenix {

/// Reads a language file: captions of menu items, one field each, in a fixed order of 88 places.
/// Calls `apply` with the menu name and its caption for each field there is; a file that ends early
/// leaves the rest as it was. What no menu has is passed over by the caller.
void ReadLanguage(
    QStringView text,
    const std::function<void(const QString &menuName, const QString &caption)> &apply);

} // namespace brenix
