#include "checks/TidyPresets.h"

#include "support/AuthorFile.h"
#include "support/ListInput.h"
#include "support/TextCodec.h"

#include <QDir>
#include <QFile>

#include <optional>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString MagicLine = u"// Brenix Tidy Script Preset File (Version 1.1)"_s;
    /// How much of the magic line's end tells the version within the first.
    constexpr qsizetype VersionLength = 3;
    const QString CountLabel = u"Total files:"_s;
    const QString NameLabel = u"FileName:"_s;
    const QString ContentLabel = u"Content:"_s;
    const QString EndLine = u"---------"_s;
    const QString LineEnd = u"\r\n"_s;

    const QString WrongName = u"Description can not include special signs like \\ or /"_s;
    const QString Damaged
        = u"This Tidy-presetfile is damaged or made by a newer version of Brenix"_s;
    const QString PresetGone
        = u"It looks like you have delete one or more presetfiles. Brenix can't export the "
          "presetfiles.\r\nError:"_s;

    QString ReadText(const QString &path, QString &error)
    {
        const FileContent content = ReadAuthorFile(path);
        error = content.error;
        return DecodePage(content.bytes, {}).text;
    }

    struct Preset
    {
        QString name;
        QString script;
    };

    /// The lines of a presets file, whatever ends them. A function that returns nothing has come on
    /// a damaged place.
    class PresetReader
    {
    public:
        explicit PresetReader(QString text)
            : m_lines(text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n'))
        {
        }

        std::optional<std::vector<Preset>> ReadAll()
        {
            const QString magic = Next().value_or(QString());
            if (magic.chopped(std::min(VersionLength, magic.size()))
                != MagicLine.chopped(VersionLength))
                return std::nullopt;
            bool isNumber = false;
            const int count = NextBehind(CountLabel).value_or(QString()).toInt(&isNumber);
            if (!isNumber || count < 0 || !Next())
                return std::nullopt;
            std::vector<Preset> presets;
            for (int i = 0; i < count; ++i) {
                std::optional<Preset> preset = ReadPreset();
                if (!preset)
                    return std::nullopt;
                presets.push_back(std::move(*preset));
            }
            return presets;
        }

    private:
        std::optional<QString> Next()
        {
            if (m_next == m_lines.size())
                return std::nullopt;
            return m_lines[m_next++];
        }

        std::optional<QString> NextBehind(QStringView label)
        {
            const std::optional<QString> line = Next();
            if (!line || !line->startsWith(label))
                return std::nullopt;
            return line->sliced(label.size());
        }

        std::optional<Preset> ReadPreset()
        {
            const std::optional<QString> name = NextBehind(NameLabel);
            if (!name || !Next())
                return std::nullopt;
            Preset preset{*name, {}};
            std::optional<QString> line = Next();
            for (; line && *line != EndLine; line = Next())
                preset.script += *line + LineEnd;
            return line ? std::optional(preset) : std::nullopt;
        }

        QStringList m_lines;
        qsizetype m_next = 0;
    };

} // namespace

QString TidyPresets::NameError(const QString &name)
{
    const bool isNoName = name.isEmpty() || name == u"." || name == u"..";
    return isNoName || name.contains(u'\\') || name.contains(u'/') ? WrongName : QString();
}

QStringList TidyPresets::Names() const
{
    return QDir(m_folder).entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
}

QString TidyPresets::PathOf(const QString &name) const
{
    return m_folder + u'/' + name;
}

TidyPresets::Script TidyPresets::Load(const QString &name) const
{
    Script script{{}, NameError(name)};
    if (script.error.isEmpty())
        script.text = ReadText(PathOf(name), script.error);
    return script;
}

QString TidyPresets::Save(const QString &name, const QString &script) const
{
    const QString error = NameError(name);
    if (!error.isEmpty())
        return error;
    QDir().mkpath(m_folder);
    return WriteAuthorFile(PathOf(name), script.toUtf8());
}

QString TidyPresets::Remove(const QString &name) const
{
    const QString error = NameError(name);
    if (!error.isEmpty())
        return error;
    QFile file(PathOf(name));
    return file.remove() ? QString() : file.errorString();
}

QString TidyPresets::Export(const QString &path) const
{
    const QStringList names = Names();
    QStringList lines{MagicLine, CountLabel + QString::number(names.size()), EndLine};
    for (const QString &name : names) {
        const Script script = Load(name);
        if (!script.error.isEmpty())
            return PresetGone + script.error;
        lines.append({NameLabel + name, ContentLabel});
        ListInput fields(script.text);
        while (const auto field = fields.Next())
            lines.append(*field);
        lines.append(EndLine);
    }
    lines.append(QString());
    return WriteAuthorFile(path, lines.join(LineEnd).toUtf8());
}

QString TidyPresets::Import(const QString &path) const
{
    QString error;
    const QString text = ReadText(path, error);
    if (!error.isEmpty())
        return error;
    const std::optional<std::vector<Preset>> presets = PresetReader(text).ReadAll();
    if (!presets)
        return Damaged;
    for (const Preset &preset : *presets) {
        if (error = NameError(preset.name); !error.isEmpty())
            return error;
    }
    for (const Preset &preset : *presets) {
        if (error = Save(preset.name, preset.script); !error.isEmpty())
            return error;
    }
    return {};
}

} // namespace brenix
