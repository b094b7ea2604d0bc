#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace brenix {

/// How a page is written on disk.
struct PageEncoding
{
    QByteArray codec = "UTF-8"; ///< name for QStringDecoder
    QByteArray byteOrderMark; ///< the bytes before the text, kept as they were
};

struct DecodedPage
{
    QString text; ///< without the mark, with the line ends of the file
    PageEncoding encoding;
    /// False when encoding the text again would not give the same bytes; such a page is opened
    /// read-only.
    bool faithful = true;
};

/// Bytes to text. A byte order mark decides the encoding; else valid UTF-8 is UTF-8; else
/// `userCodec` (empty or unknown, or a Unicode encoding that the bytes do not fit: "windows-1250"),
/// with the bytes that the code page leaves undefined mapped to the control characters of the same
/// number (from A0 on, where letters have those numbers, to U+F700 plus the byte). Every byte
/// sequence decodes.
DecodedPage DecodePage(const QByteArray &bytes, const QByteArray &userCodec);

/// The text with each of its line ends (CR LF, CR, LF) as CR LF, as commands see a page.
QString WithCrLf(QString text);

/// What to do with a character that the encoding lacks.
enum class Unencodable {
    Refuse, ///< encode nothing, say where it stands
    CharacterReference, ///< write "&#N;" with the character's number in decimal
};
struct EncodedPage
{
    QByteArray bytes; ///< with the byte order mark; empty when refused
    /// Position in the text from 0, also where a reference was written for it; -1 when there is
    /// none.
    qsizetype firstUnencodable = -1;
};
EncodedPage EncodePage(QStringView text,
                       const PageEncoding &encoding,
                       Unencodable unencodable = Unencodable::Refuse);

/// A text document cannot hold U+2029, U+FDD0 and U+FDD1. On the screen stand-ins (three other
/// noncharacters, which no interchanged text uses) take their places. `true` when the text holds a
/// stand-in of its own, so that the two could not be told apart.
bool HoldsStandIns(QStringView text);
QString WithStandIns(QString text);
QString WithoutStandIns(QString text);

} // namespace brenix
