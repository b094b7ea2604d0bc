#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// What completion offers behind the name of a tag, in the catalogue's order: an attribute that
/// takes a value has "=" behind its name ("src="), another has not ("noshade"); "data-" is a name
/// that the author completes. Some stand twice or are misspelt. The name is in any case and without
/// brackets; an unknown one gives nothing. The dialect "HTML 5" has rows of its own and no others;
/// all other titles share one table.
QStringList AttributesOfTag(QStringView tagName, QStringView dialect = {});

/// What the dialogs offer: bare names, and without the few that completion alone knows. The rest is
/// as for `AttributesOfTag`.
QStringList DialogAttributesOfTag(QStringView tagName, QStringView dialect = {});

} // namespace brenix
