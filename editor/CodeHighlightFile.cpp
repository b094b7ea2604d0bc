#include "editor/CodeHighlight.h"
#include "editor/LargeFile.h"
#include "editor/PageText.h"
#include "support/AuthorFile.h"
#include "support/MessageBoxes.h"

using namespace Qt::StringLiterals;

namespace brenix {

bool CodeHighlight::LoadFile(const QString &path)
{
    const FileContent file = ReadAuthorFile(path);
    m_loadError = file.error;
    const DecodedPage page = DecodePage(file.bytes, m_charCode);
    const bool faithful = page.faithful && !HoldsStandIns(page.text);
    m_encoding = page.encoding;
    m_readOnlyBytes = faithful ? QByteArray() : file.bytes;
    setReadOnly(!faithful);
    SetHeld(HeldText(page.text));
    if (!faithful) {
        MsgBox(
            u"'%1' holds bytes that are no text in its encoding (%2). It can be read, but not changed."_s
                .arg(path, QString::fromLatin1(page.encoding.codec)),
            Buttons::Ok,
            Icon::Information);
    }
    return m_loadError.isEmpty();
}

void CodeHighlight::SetHeld(const QString &held)
{
    m_repaintEnabled = false;
    setUpdatesEnabled(false);
    m_textChanged = true;
    m_mirror->SetUsualEnd(UsualLineEnd(held));
    m_mirror->Replace(0, m_mirror->Rope().Length(), held);
    TellLimitOnce();
    m_colours.ColourAll(LargeFile());
    Select(0, 0);
    m_lastLine = 0;
    m_lineEdited = false;
    setUpdatesEnabled(true);
    m_repaintEnabled = true;
    PlaceGutter();
}

QByteArray CodeHighlight::FileBytes() const
{
    return EncodedFile(Unencodable::CharacterReference, nullptr);
}

QByteArray CodeHighlight::EncodedFile(Unencodable unencodable, qsizetype *firstUnencodable) const
{
    if (IsReadOnlyPage())
        return m_readOnlyBytes;
    const EncodedPage encoded = EncodePage(FileTextOf(m_mirror->Rope()), m_encoding, unencodable);
    if (firstUnencodable)
        *firstUnencodable = encoded.firstUnencodable;
    return encoded.bytes;
}

bool CodeHighlight::SaveFile(const QString &path)
{
    qsizetype firstUnencodable = -1;
    QByteArray bytes = EncodedFile(Unencodable::Refuse, &firstUnencodable);
    if (firstUnencodable >= 0 && !AskAboutEncoding(firstUnencodable, bytes))
        return false;
    const QString error = WriteAuthorFile(path, bytes);
    if (error.isEmpty())
        return true;
    MsgBox(u"Can't save '"_s + path + u"'\n\n"_s + error, Buttons::Ok, Icon::Critical);
    return false;
}

bool CodeHighlight::AskAboutEncoding(qsizetype firstUnencodable, QByteArray &bytes)
{
    const QString text = FileTextOf(m_mirror->Rope());
    const char32_t character = QStringView(text).sliced(firstUnencodable).toUcs4().constFirst();
    const int answer = ChooseBox(
        u"The character '%1' does not exist in the encoding of this page (%2). How shall it be saved?"_s
            .arg(QString::fromUcs4(&character, 1), QString::fromLatin1(m_encoding.codec)),
        {u"Save as &UTF-8"_s, u"As &character reference"_s, u"Cancel"_s},
        Icon::Question);
    if (answer == 0)
        m_encoding = PageEncoding();
    if (answer == 0 || answer == 1)
        bytes = EncodedFile(Unencodable::CharacterReference, nullptr);
    return answer == 0 || answer == 1;
}

} // namespace brenix
