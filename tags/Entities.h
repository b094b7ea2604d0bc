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

/// The character that "&name;" stands for, as "é" for "&eacute;"; case counts. Knows the 252 names
/// of HTML 4. Empty for any other text: an unknown name, a number, no "&" or no ";".
QString CharacterOfEntity(QStringView entity);

} // namespace brenix
