#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The rows of the character map in the order of their characters, "¡ - &iexcl;" to "ÿ - &yuml;":
/// 91 of the 95 printed characters of Latin-1. The soft hyphen is left out because nothing would be
/// seen, and the accents acute, cedil and macr because they pass for an apostrophe, a comma and a
/// hyphen.
QStringList CharacterMapRows();
/// Such rows for the characters that are called like it: "dash" gives those of ndash and mdash, as
/// "&DASH;" does, and "–" that of ndash alone. All names of HTML 4 are looked at; those of the map
/// come first. Everything in the map for an empty text.
QStringList CharacterMapRows(QStringView wanted);

/// The character that "&name;" stands for, as "é" for "&eacute;"; case counts. Knows the 252 names
/// of HTML 4. Empty for any other text: an unknown name, a number, no "&" or no ";".
QString CharacterOfEntity(QStringView entity);

} // namespace brenix
