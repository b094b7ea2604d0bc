#pragma once

#include <QString>

#include <functional>

namespace brenix {

/// Reads a language file: captions of menu items, one field each, in a fixed order of 88 places.
/// Calls `apply` with the menu name and its caption for each field that is not blank; a file that
/// ends early leaves the rest as it was, and a field that is too long for a menu is cut. What no
/// menu has is passed over by the caller.
void ReadLanguage(
    QStringView text,
    const std::function<void(const QString &menuName, const QString &caption)> &apply);

} // namespace brenix
