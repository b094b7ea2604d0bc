#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace brenix {

/// The user's settings: section and key, found without regard to case, and a value that is always a
/// string. Read where it is needed, with the default at the call; a write is seen by every later
/// read. Nothing is ever removed. A store that cannot be written keeps its values until the program
/// ends. For the main thread alone, whose event loop puts writes on the disk; what is left goes
/// there when the application object ends.
QString GetSetting(QStringView section, QStringView key, const QString &defaultValue = {});
void SaveSetting(QStringView section, QStringView key, const QString &value);

/// A setting as a whole number; nothing when the stored text is not one.
std::optional<int> GetNumberSetting(QStringView section, QStringView key, int defaultValue);
/// True when the setting is the number 1 ("True" and "-1" count as well, the two other ways
/// booleans are written).
bool IsSettingOn(QStringView section, QStringView key, bool defaultValue);

/// Keeps the store in another directory from now on (tests; an empty name brings back the user's
/// own).
void UseSettingsDirectory(const QString &directory);
/// The file that holds the store.
QString SettingsFile();

} // namespace brenix
