#include "support/TextCodec.h"

#include <QHash>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    using Flag = QStringConverter::Flag;

    /// A code page of single bytes, made complete and reversible.
    class CodePage
    {
    public:
        /// Nothing when the codec is not one of single bytes.
        static std::optional<CodePage> Of(const QByteArray &codec);

        QString Decode(QByteArrayView bytes) const
        {
            QString text(bytes.size(), Qt::Uninitialized);
            std::transform(bytes.begin(), bytes.end(), text.begin(), [this](char byte) {
                return QChar(m_characters[quint8(byte)]);
            });
            return text;
        }

        std::optional<QByteArray> Encode(QStringView text) const
        {
            QByteArray bytes(text.size(), Qt::Uninitialized);
            for (qsizetype i = 0; i < text.size(); ++i) {
                const qint16 byte = m_bytes[text[i].unicode()];
                if (byte < 0)
                    return {};
                bytes[i] = char(byte);
            }
            return bytes;
        }

    private:
        bool Define(int byte, char16_t character)
        {
            if (m_bytes[character] >= 0)
                return false;
            m_bytes[character] = qint16(byte);
            m_characters[size_t(byte)] = character;
            return true;
        }

        std::array<char16_t, 256> m_characters = {};
        std::vector<qint16> m_bytes = std::vector<qint16>(0x10000, -1);
    };

    std::optional<CodePage> CodePage::Of(const QByteArray &codec)
    {
        CodePage page;
        std::vector<int> undefined;
        for (int byte = 0; byte < 256; ++byte) {
            const QByteArray bytes(1, char(byte));
            // With a state, so that the first byte of several gives nothing yet.
            const QString text = QStringDecoder(codec.constData(), Flag::Default)(bytes);
            if (text.size() != 1)
                return {};
            QStringEncoder encoder(codec.constData(), Flag::Stateless);
            const QByteArray again = encoder(text);
            if (encoder.hasError() || again != bytes || !page.Define(byte, text[0].unicode()))
                undefined.push_back(byte);
        }
        // An undefined byte becomes the control character of its number. Where that is a letter,
        // which the author may also type, a private character stands for the byte.
        constexpr char16_t privateStart = 0xF700;
        for (const int byte : undefined) {
            const bool isControl = byte >= 0x80 && byte < 0xA0;
            if (!(isControl && page.Define(byte, char16_t(byte)))
                && !page.Define(byte, char16_t(privateStart + byte)))
                return {};
        }
        return page;
    }

    class Codec
    {
    public:
        explicit Codec(const QByteArray &name);

        const QByteArray &Name() const { return m_name; }
        QString Decode(QByteArrayView bytes) const;
        /// Nothing when the text cannot be had back from the bytes.
        std::optional<QByteArray> Encode(QStringView text) const;
        bool IsFaithful(QByteArrayView bytes, QStringView text) const;

    private:
        bool IsUtf8() const
        {
            return QStringConverter::encodingForName(m_name.constData()) == QStringConverter::Utf8;
        }

        QByteArray m_name;
        std::optional<CodePage> m_page;
    };

    QByteArray UsableName(const QByteArray &name)
    {
        const QByteArray trimmed = name.trimmed();
        const bool isKnown = !trimmed.isEmpty() && QStringDecoder(trimmed.constData()).isValid()
            && QStringEncoder(trimmed.constData()).isValid();
        return isKnown ? trimmed : QByteArray("windows-1250");
    }

    Codec::Codec(const QByteArray &name)
        : m_name(UsableName(name))
    {
        if (!IsUtf8())
            m_page = CodePage::Of(m_name);
    }

    QString Codec::Decode(QByteArrayView bytes) const
    {
        if (m_page)
            return m_page->Decode(bytes);
        // Without the first flag a character that is cut off at the end vanishes; without the
        // second, a U+FEFF.
        return QStringDecoder(m_name.constData(), Flag::Stateless | Flag::ConvertInitialBom)(bytes);
    }

    std::optional<QByteArray> Codec::Encode(QStringView text) const
    {
        if (m_page)
            return m_page->Encode(text);
        if (IsUtf8())
            return text.isValidUtf16() ? std::optional(text.toUtf8()) : std::nullopt;
        QStringEncoder encoder(m_name.constData(), Flag::Stateless);
        const QByteArray bytes = encoder(text);
        // Some codecs write a similar character, or lose one, without an error.
        if (encoder.hasError() || Decode(bytes) != text)
            return {};
        return bytes;
    }

    bool Codec::IsFaithful(QByteArrayView bytes, QStringView text) const
    {
        if (m_page)
            return true;
        return IsUtf8() ? bytes.isValidUtf8() : Encode(text) == bytes;
    }

    DecodedPage Decode(QByteArrayView bytes, const Codec &codec, const QByteArray &mark)
    {
        DecodedPage page{.text = codec.Decode(bytes.sliced(mark.size())),
                         .encoding = {.codec = codec.Name(), .byteOrderMark = mark}};
        page.faithful = codec.IsFaithful(bytes.sliced(mark.size()), page.text);
        return page;
    }

    std::optional<DecodedPage> DecodeMarked(const QByteArray &bytes)
    {
        struct Mark
        {
            QByteArray bytes;
            const char *codec;
            bool isSure; ///< the other marks may be the start of something else: what follows must
                         ///< fit
        };
        const Mark marks[] = {
            {QByteArray::fromHex("EFBBBF"), "UTF-8", true},
            {QByteArray::fromHex("FFFE0000"), "UTF-32LE", false},
            {QByteArray::fromHex("0000FEFF"), "UTF-32BE", false},
            {QByteArray::fromHex("FFFE"), "UTF-16LE", true},
            {QByteArray::fromHex("FEFF"), "UTF-16BE", true},
        };
        for (const Mark &mark : marks) {
            if (!bytes.startsWith(mark.bytes))
                continue;
            DecodedPage page = Decode(bytes, Codec(mark.codec), mark.bytes);
            if (page.faithful || mark.isSure)
                return page;
        }
        return {};
    }

    /// The units of the character at a position: two for a complete pair.
    qsizetype CharacterLength(QStringView text, qsizetype at)
    {
        const bool isPair
            = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        return isPair ? 2 : 1;
    }

    /// The text with references for what the codec lacks, and where the first one of these stands.
    struct Referenced
    {
        QString text;
        qsizetype first = -1;
    };

    Referenced WithReferences(QStringView text, const Codec &codec)
    {
        Referenced result;
        QHash<char32_t, bool> isEncodable;
        for (qsizetype at = 0, length = 0; at < text.size(); at += length) {
            length = CharacterLength(text, at);
            const QStringView character = text.mid(at, length);
            const char32_t number = length == 2 ? QChar::surrogateToUcs4(character[0], character[1])
                                                : character[0].unicode();
            auto known = isEncodable.find(number);
            if (known == isEncodable.end())
                known = isEncodable.insert(number, codec.Encode(character).has_value());
            if (*known) {
                result.text += character;
                continue;
            }
            if (result.first < 0)
                result.first = at;
            result.text += u"&#"_s + QString::number(number) + u';';
        }
        return result;
    }

    struct StandIn
    {
        char16_t character;
        char16_t standIn;
    };
    constexpr StandIn standIns[] = {{0x2029, 0xFDD2}, {0xFDD0, 0xFDD3}, {0xFDD1, 0xFDD4}};

} // namespace

DecodedPage DecodePage(const QByteArray &bytes, const QByteArray &userCodec)
{
    if (const std::optional<DecodedPage> page = DecodeMarked(bytes))
        return *page;
    if (bytes.isValidUtf8())
        return Decode(bytes, Codec("UTF-8"), {});
    const DecodedPage page = Decode(bytes, Codec(userCodec), {});
    // Bytes that do not fit a Unicode encoding are not in that encoding.
    if (!page.faithful && page.encoding.codec.toUpper().startsWith("UTF"))
        return Decode(bytes, Codec({}), {});
    return page;
}

EncodedPage EncodePage(QStringView text, const PageEncoding &encoding, Unencodable unencodable)
{
    const Codec codec(encoding.codec);
    if (const std::optional<QByteArray> bytes = codec.Encode(text))
        return {.bytes = encoding.byteOrderMark + *bytes};
    const Referenced referenced = WithReferences(text, codec);
    EncodedPage page{.bytes = {}, .firstUnencodable = qMax<qsizetype>(referenced.first, 0)};
    if (unencodable == Unencodable::Refuse)
        return page;
    if (const std::optional<QByteArray> bytes = codec.Encode(referenced.text))
        page.bytes = encoding.byteOrderMark + *bytes;
    return page;
}

QString WithCrLf(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text.replace(u'\n', u"\r\n"_s);
}

bool HoldsStandIns(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character >= standIns[0].standIn && character <= standIns[2].standIn;
    });
}

QString WithStandIns(QString text)
{
    for (const auto &[character, standIn] : standIns)
        text.replace(QChar(character), QChar(standIn));
    return text;
}

QString WithoutStandIns(QString text)
{
    for (const auto &[character, standIn] : standIns)
        text.replace(QChar(standIn), QChar(character));
    return text;
}

} // namespace brenix
