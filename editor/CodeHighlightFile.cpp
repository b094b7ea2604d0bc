#include "editor/CodeHighlight.h"
#include "editor/LargeFile.h"
#include "editor/PageText.h"
#include "support/AuthorFile.h"
#include "support/MessageBoxes.h"
#include "support/PreviewCopies.h"

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
    if (!faithful)
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
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
    m_colours.ColourAll(LargeFile());
    Select(0, 0);
    m_lastLine = 0;
    m_editedLine = -1;
    m_selChangeDue = true;
    setUpdatesEnabled(true);
    m_repaintEnabled = true;
    PlaceGutter();
    TellLimitOnce(TextLength());
}

bool CodeHighlight::NeedsOtherEncoding() const
{
    qsizetype firstUnencodable = -1;
    EncodedFile(m_encoding, Unencodable::Refuse, &firstUnencodable);
    return firstUnencodable >= 0;
}

QByteArray CodeHighlight::FileBytes() const
{
    return EncodedFile(m_encoding, Unencodable::CharacterReference, nullptr);
}

QByteArray CodeHighlight::EncodedFile(const PageEncoding &encoding,
                                      Unencodable unencodable,
                                      qsizetype *firstUnencodable) const
{
    if (IsReadOnlyPage())
        return m_readOnlyBytes;
    const EncodedPage encoded = EncodePage(FileTextOf(m_mirror->Rope()), encoding, unencodable);
    if (firstUnencodable)
        *firstUnencodable = encoded.firstUnencodable;
    return encoded.bytes;
}

bool CodeHighlight::SaveFile(const QString &path)
{
    qsizetype firstUnencodable = -1;
    PageEncoding encoding = m_encoding;
    QByteArray bytes = EncodedFile(encoding, Unencodable::Refuse, &firstUnencodable);
    if (firstUnencodable >= 0) {
        if (!AskAboutEncoding(firstUnencodable, encoding))
            return false;
        bytes = EncodedFile(encoding, Unencodable::CharacterReference, nullptr);
    }
    // Nothing stands for a page that its encoding cannot hold even with references.
    const bool isLost = bytes.isEmpty() && TextLength() > 0;
    const QString error = isLost ? u"The text does not fit the encoding of this page."_s
                                 : WriteAuthorFile(path, bytes);
    if (error.isEmpty()) {
        m_encoding = encoding;
        ForgetPreviewCopy(path);
        return true;
    }
    MsgBox(u"Can't save '"_s + path + u"'\n\n"_s + error, Buttons::Ok, Icon::Critical);
    return false;
}

// False when the user gives up; `encoding` becomes the one to write in.
bool CodeHighlight::AskAboutEncoding(qsizetype firstUnencodable, PageEncoding &encoding) const
{
    const QString text = FileTextOf(m_mirror->Rope());
    const char32_t character = QStringView(text).sliced(firstUnencodable).toUcs4().constFirst();
    const int answer = ChooseBox(
        u"The character '%1' does not exist in the encoding of this page (%2). How shall it be saved?"_s
            .arg(QString::fromUcs4(&character, 1), QString::fromLatin1(encoding.codec)),
        {u"Save as &UTF-8"_s, u"As &character reference"_s, u"Cancel"_s},
        Icon::Question);
    if (answer == 0)
        encoding = PageEncoding();
    return answer == 0 || answer == 1;
}

} // namespace brenix
