#pragma once

#include <QString>
#include <QStringList>

namespace brenix {

/// What the dialect "HTML 5" knows beyond its tags. The attributes of an element are its own and
/// then those of every element; an entry that takes a value has "=" behind its name. The name is in
/// upper case; a tag that is no element of HTML 5 has none.
QStringList Html5AttributesOfTag(const QString &tagName);

/// The values of an attribute whose name is in lower case; empty where HTML 5 has no row for it.
QStringList Html5ValuesOfAttribute(const QString &name);

} // namespace brenix
