#include "macros/MacroFiles.h"

#include "support/AuthorFile.h"
#include "support/ListInput.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString Ending = u".mac"_s;

    QString MacroPath(const QString &name)
    {
        return AppPath(QString(u"Macro/"_s + name + Ending));
    }

    MacroError BadName(const QString &name)
    {
        return {MacroError::InvalidCall, u"This is no name of a macro: "_s + name};
    }

} // namespace

QStringList MacroNames()
{
    QStringList names;
    const QDir folder(AppPath(u"Macro"));
    for (const QString &file :
         folder.entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase)) {
        if (file.endsWith(Ending) && file.size() > Ending.size())
            names.append(file.chopped(Ending.size()));
    }
    return names;
}

QString MacroLetter(int place)
{
    return place >= 0 && place < 26 ? QString(QChar(u'A' + place)) : QString();
}

bool IsMacroName(const QString &name)
{
    return !name.isEmpty() && FileNameOf(name) == name && !name.contains(QChar(u'\0'));
}

MacroFile ReadMacroFile(const QString &name)
{
    if (!IsMacroName(name))
        return {{}, BadName(name)};
    const FileContent file = ReadAuthorFile(MacroPath(name));
    if (!file.error.isEmpty())
        return {{}, {MacroError::FileNotFound, file.error}};
    const QString codec = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s);
    return {DecodePage(file.bytes, codec.toLatin1()), {}};
}

QString MacroText(QStringView file)
{
    ListInput input(file);
    QStringList fields;
    while (const std::optional<QString> field = input.Next())
        fields.append(*field);
    return fields.join(u"\r\n"_s);
}

MacroError WriteMacroFile(const QString &name, const QString &text, const PageEncoding &encoding)
{
    if (!IsMacroName(name))
        return BadName(name);
    EncodedPage encoded = EncodePage(text, encoding);
    if (encoded.firstUnencodable >= 0)
        encoded = EncodePage(text, {}, Unencodable::CharacterReference);
    const QString error = WriteAuthorFile(MacroPath(name), encoded.bytes);
    return error.isEmpty() ? MacroError() : MacroError{MacroError::PathAccess, error};
}

MacroError CreateMacroFile(const QString &name)
{
    if (IsMacroName(name) && QFile::exists(MacroPath(name)))
        return {};
    return WriteMacroFile(name, u"\r\n"_s, {});
}

MacroError DeleteMacroFile(const QString &name)
{
    if (!IsMacroName(name))
        return BadName(name);
    QFile file(MacroPath(name));
    if (file.remove() || !file.exists())
        return {};
    return {MacroError::PathAccess, file.errorString()};
}

} // namespace brenix
