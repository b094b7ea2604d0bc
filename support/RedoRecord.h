#pragma once

#include "support/SystemFile.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace brenix {

/// For files that a rename would change (hard links, a foreign owner, an access list, a closed
/// folder): the content is written over the old one, and a record under `AppDirectory()`/Recovery
/// says how to finish when that is interrupted.

struct InPlaceWrite
{
    QByteArray target; ///< absolute name for the system
    QByteArray before;
    QByteArray after;
};

/// Overwrites an existing regular file. Returns the error text, empty on success; the file is then
/// as it was.
QString WriteInPlace(const QByteArray &target, const QByteArray &bytes);

/// A stored record; a record that is open here is left alone by `FinishInterruptedWrites`, in
/// whatever process.
class RedoRecord
{
public:
    /// Stores the record and waits for the disk. Returns the error text, empty on success.
    QString Store(const InPlaceWrite &write);
    void Remove();

private:
    QString Create(const QByteArray &folder);

    FileDescriptor m_file;
    QByteArray m_name;
};

/// What a record holds; nothing when it was never completed.
std::optional<InPlaceWrite> ReadRedoRecord(const FileDescriptor &record);

} // namespace brenix
