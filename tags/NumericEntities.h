#pragma once

#include <QString>
#include <QStringView>

namespace brenix {

/// Every character of a text, blanks and line ends included, as its Unicode number: "Hi" gives
/// "&#72;&#105;". Two surrogates that make up a character give one number.
QString NumericEntities(QStringView text);

} // namespace brenix
