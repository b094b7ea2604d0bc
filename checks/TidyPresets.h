#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <utility>

namespace brenix {

/// The scripts for Tidy that the author keeps: files of a folder, each named as the author
/// described it. Functions that return an error text return the words to be shown, empty on
/// success.
class TidyPresets
{
public:
    /// The folder is made when the first preset is written.
    explicit TidyPresets(QString folder)
        : m_folder(std::move(folder))
    {
    }

    /// Why a description cannot name a preset: it has "\" or "/" in it, or is no name at all ("",
    /// "." and "..").
    static QString NameError(const QString &name);

    /// The descriptions, in alphabetical order, and the file of one.
    QStringList Names() const;
    QString PathOf(const QString &name) const;

    /// The script as it stands in its file; `error` is empty on success.
    struct Script
    {
        QString text;
        QString error;
    };
    Script Load(const QString &name) const;
    /// Replaces a preset of that name. Writes nothing under a name that `NameError` refuses.
    QString Save(const QString &name, const QString &script) const;
    QString Remove(const QString &name) const;

    /// Writes all presets into one file. Scripts go through list input: a comma ends a line, and a
    /// line in quotes loses them.
    QString Export(const QString &path) const;
    /// Writes every preset of an exported file into the folder, over those of the same names.
    /// A file of another kind or a newer version, one that is cut short or has a wrong count, and
    /// one with a name that `NameError` refuses, change nothing.
    QString Import(const QString &path) const;

private:
    QString m_folder;
};

} // namespace brenix
