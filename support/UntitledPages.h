#pragma once

#include <QString>

namespace brenix {

/// The directory of unsaved documents, without a separator at its end. Nothing is written there but
/// preview copies.
QString TempDir();
/// Reads `Settings`/`TemporaryDirectory`; without one it is the application directory's own.
/// Returns the directory.
QString ChooseTempDir();

/// The caption of the `number`-th new document, which marks it as one that was never saved.
QString UntitledCaption(int number);
/// True for every name in the directory of unsaved documents that begins with "Document".
bool IsUntitled(const QString &caption);

} // namespace brenix
