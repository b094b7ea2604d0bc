#pragma once

#include <QString>

#include <optional>

namespace brenix {

/// The longest selection that a note is about, in UTF-16 units. Whoever follows the caret asks for
/// the length first, so that a large selection costs nothing.
constexpr int LongestNoted = 1024;

/// What the note beside the caret tells about the selected text; at most one of the three is set.
struct CaretNote
{
    std::optional<quint32> colour; // 0xRRGGBB
    QString picture; // a file name as it stands in the page
    QString entity; // the note itself
};

/// "#FF0000" is a colour, "img/photo.JPG" a picture, and "&eacute;", "&#233;" and "&#xE9;" are
/// notes: "Entitie = 'é '" for a name, with the blank of its row in the character map, and
/// "Numbered entitie = 'é'" for a number. Numbers 128 to 159 mean what browsers make of them, the
/// signs that windows-1252 has there. Nothing is set for any other text: digits that are none, a
/// name that no entity has, a number that is no character, a file name with control characters.
CaretNote NoteOf(const QString &selected);

} // namespace brenix
