#pragma once

#include <QString>
#include <QStringView>

namespace brenix {

/// What a file of a project is, by the ending of its name.
enum class FileKind { Page, Picture, Style, Script, Other };
FileKind KindOf(QStringView fileName);

/// The markup for a file that lies beside the page: a picture where the name ends in "gif", "jpg",
/// "png" or "jpeg" (in any case, with or without a point before it), else a link round `selection`.
QString ProjectMarkup(const QString &fileName, const QString &selection);

} // namespace brenix
