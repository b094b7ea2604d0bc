#include "support/SettingsStore.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>

#include <memory>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    /// The file with the spelling of each key: where the system tells cases apart, Qt's own look-up
    /// does as well.
    class Store : public QSettings
    {
    public:
        explicit Store(const QString &file)
            : QSettings(file, QSettings::IniFormat)
        {
            ReadSpellings();
        }

        QString Spelling(const QString &name) const
        {
            return m_spellings.value(name.toCaseFolded());
        }

        void Set(const QString &name, const QString &text)
        {
            QString &spelling = m_spellings[name.toCaseFolded()];
            if (spelling.isEmpty())
                spelling = name;
            setValue(spelling, text);
        }

    protected:
        bool event(QEvent *event) override
        {
            const bool isHandled = QSettings::event(event);
            // Qt has just merged what other running programs wrote.
            if (event->type() == QEvent::UpdateRequest)
                ReadSpellings();
            return isHandled;
        }

    private:
        void ReadSpellings()
        {
            const QStringList names = allKeys();
            for (const QString &name : names) {
                QString &spelling = m_spellings[name.toCaseFolded()];
                if (spelling.isEmpty())
                    spelling = name;
            }
        }

        QHash<QString, QString> m_spellings;
    };

    struct State
    {
        // Written at the latest when the application object goes, while Qt's own tables are still
        // there.
        State() { qAddPostRoutine(CloseStore); }
        static void CloseStore();

        QString directory;
        std::unique_ptr<Store> store;
    };

    State &TheState()
    {
        static State state;
        return state;
    }

    void State::CloseStore()
    {
        TheState().store.reset();
    }

    Store &TheStore()
    {
        std::unique_ptr<Store> &store = TheState().store;
        if (!store)
            store = std::make_unique<Store>(SettingsFile());
        return *store;
    }

    /// Qt takes a separator within a name for one more level, and some of them away.
    QString LevelName(QStringView name)
    {
        QString level = name.toString();
        for (QChar &character : level) {
            if (character == u'/' || character == u'\\')
                character = u'_';
        }
        return level;
    }

    QString FullName(QStringView section, QStringView key)
    {
        return section.isEmpty() ? LevelName(key) : LevelName(section) + u'/' + LevelName(key);
    }

    QString AsText(const QVariant &value)
    {
        // A list comes out of a line that somebody wrote into the file by hand, without the quotes.
        return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", "_s)
                                                        : value.toString();
    }

} // namespace

QString GetSetting(QStringView section, QStringView key, const QString &defaultValue)
{
    const Store &store = TheStore();
    const QString name = store.Spelling(FullName(section, key));
    return name.isEmpty() ? defaultValue : AsText(store.value(name, defaultValue));
}

void SaveSetting(QStringView section, QStringView key, const QString &value)
{
    if (!key.isEmpty())
        TheStore().Set(FullName(section, key), value);
}

std::optional<int> GetNumberSetting(QStringView section, QStringView key, int defaultValue)
{
    bool isNumber = false;
    const int number
        = GetSetting(section, key, QString::number(defaultValue)).trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool IsSettingOn(QStringView section, QStringView key, bool defaultValue)
{
    const QString text = GetSetting(section, key, defaultValue ? u"1"_s : u"0"_s).trimmed();
    if (text.compare(u"True"_s, Qt::CaseInsensitive) == 0)
        return true;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && (number == 1 || number == -1);
}

void UseSettingsDirectory(const QString &directory)
{
    TheState().store.reset();
    TheState().directory = directory;
}

QString SettingsFile()
{
    const QString &given = TheState().directory;
    if (!given.isEmpty())
        return given + u"/Brenix.ini"_s;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/Brenix/Brenix.ini"_s;
}

} // namespace brenix
