#include "app/Encodings.h"

#include <QStringDecoder>

namespace brenix {

namespace {

    struct Row
    {
        const char16_t *name;
        const char16_t *description;
    };

    // clang-format off
    constexpr Row Rows[] = {
        {u"UTF-8",                 u"Unicode, all languages"},
        {u"UTF-16LE",              u"Unicode in pairs of bytes, low byte first"},
        {u"UTF-16BE",              u"Unicode in pairs of bytes, high byte first"},
        {u"US-ASCII",              u"English without accents"},
        {u"windows-1252",          u"Western European (Windows)"},
        {u"ISO-8859-1",            u"Western European (Latin 1)"},
        {u"ISO-8859-15",           u"Western European with the euro sign (Latin 9)"},
        {u"ISO-8859-14",           u"Celtic (Latin 8)"},
        {u"macintosh",             u"Western European (Macintosh)"},
        {u"IBM437",                u"English (DOS)"},
        {u"IBM850",                u"Western European (DOS)"},
        {u"IBM858",                u"Western European with the euro sign (DOS)"},
        {u"IBM860",                u"Portuguese (DOS)"},
        {u"IBM861",                u"Icelandic (DOS)"},
        {u"IBM863",                u"Canadian French (DOS)"},
        {u"IBM865",                u"Nordic (DOS)"},
        {u"hp-roman8",             u"Western European (Roman 8)"},
        {u"windows-1250",          u"Central European (Windows)"},
        {u"ISO-8859-2",            u"Central European (Latin 2)"},
        {u"ISO-8859-16",           u"South-Eastern European (Latin 10)"},
        {u"x-mac-centraleurroman", u"Central European (Macintosh)"},
        {u"IBM852",                u"Central European (DOS)"},
        {u"windows-1257",          u"Baltic (Windows)"},
        {u"ISO-8859-4",            u"Baltic, northern European (Latin 4)"},
        {u"ISO-8859-10",           u"Nordic (Latin 6)"},
        {u"ISO-8859-13",           u"Baltic (Latin 7)"},
        {u"IBM775",                u"Baltic (DOS)"},
        {u"windows-1251",          u"Cyrillic (Windows)"},
        {u"KOI8-R",                u"Russian (KOI8)"},
        {u"KOI8-U",                u"Ukrainian (KOI8)"},
        {u"ISO-8859-5",            u"Cyrillic (ISO)"},
        {u"x-mac-cyrillic",        u"Cyrillic (Macintosh)"},
        {u"IBM855",                u"Cyrillic, Serbian and Bulgarian (DOS)"},
        {u"IBM866",                u"Russian (DOS)"},
        {u"windows-1253",          u"Greek (Windows)"},
        {u"ISO-8859-7",            u"Greek (ISO)"},
        {u"x-mac-greek",           u"Greek (Macintosh)"},
        {u"IBM737",                u"Greek (DOS)"},
        {u"IBM869",                u"Greek, newer (DOS)"},
        {u"windows-1254",          u"Turkish (Windows)"},
        {u"ISO-8859-9",            u"Turkish (Latin 5)"},
        {u"ISO-8859-3",            u"Maltese, Esperanto (Latin 3)"},
        {u"x-mac-turkish",         u"Turkish (Macintosh)"},
        {u"IBM857",                u"Turkish (DOS)"},
        {u"windows-1255",          u"Hebrew (Windows)"},
        {u"ISO-8859-8",            u"Hebrew (ISO)"},
        {u"IBM862",                u"Hebrew (DOS)"},
        {u"windows-1256",          u"Arabic (Windows)"},
        {u"ISO-8859-6",            u"Arabic (ISO)"},
        {u"IBM864",                u"Arabic (DOS)"},
        {u"windows-874",           u"Thai (Windows)"},
        {u"TIS-620",               u"Thai (national standard)"},
        {u"ISO-8859-11",           u"Thai (ISO)"},
        {u"windows-1258",          u"Vietnamese (Windows)"},
        {u"Shift_JIS",             u"Japanese (Shift-JIS)"},
        {u"EUC-JP",                u"Japanese (EUC)"},
        {u"ISO-2022-JP",           u"Japanese (JIS, used in mail)"},
        {u"GB18030",               u"Chinese, simplified (GB 18030)"},
        {u"GBK",                   u"Chinese, simplified (GBK)"},
        {u"GB2312",                u"Chinese, simplified (GB 2312)"},
        {u"Big5",                  u"Chinese, traditional (Big5)"},
        {u"Big5-HKSCS",            u"Chinese, traditional, Hong Kong (Big5)"},
        {u"EUC-TW",                u"Chinese, traditional (EUC)"},
        {u"EUC-KR",                u"Korean (EUC)"},
        {u"windows-949",           u"Korean (Windows)"},
    };
    // clang-format on

} // namespace

bool IsDecodable(const QString &name)
{
    return !name.isEmpty() && QStringDecoder(name.toLatin1().constData()).isValid();
}

QList<NamedEncoding> Encodings()
{
    QList<NamedEncoding> encodings;
    for (const Row &row : Rows) {
        const QString name = QString::fromUtf16(row.name);
        if (IsDecodable(name))
            encodings.append({name, QString::fromUtf16(row.description)});
    }
    return encodings;
}

} // namespace brenix
