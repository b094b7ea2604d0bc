#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>

namespace brenix {

/// Choices that are no values: the author picks a colour or a file for them.
inline constexpr QStringView ColourChoice = u"(color)";
inline constexpr QStringView FileChoice = u"(file)";

/// Lists the fonts of the system, in the system's order.
using FontLister = std::function<QStringList()>;

/// The values that completion offers for an attribute of whatever tag, in the catalogue's order;
/// some stand twice. `name` is trimmed and in lower case; one without a row gives nothing. `fonts`
/// is called for "face" alone, whose values are its answer in lower case; without it there are
/// none. The dialect "HTML 5" has rows of its own that go before the others; any other title
/// changes nothing.
QStringList ValuesOfAttribute(QStringView name, const FontLister &fonts, QStringView dialect = {});

} // namespace brenix
