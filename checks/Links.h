#pragma once

#include <QString>
#include <QStringView>

namespace brenix {

enum class LinkStatus { Ok, Broken, Url, Inside, Ftp, Mail };

/// "OK!", "Broken", "URL", "Inside", "FTP" or "Mail".
QString StatusWord(LinkStatus status);

/// A row of the link checker.
struct CheckedLink
{
    LinkStatus status;
    QString link; ///< as it was tested; of a mail link the address
};

/// Tells of what kind a link is ("http://", "ftp://", "#", "mailto:", without regard to case), and
/// looks for the file when it is none of these. `projectFolder`, as `LinkFolder` gives it, is where
/// a link with "../" or "..\" starts from; any other stands as it is, but for "file://", which is
/// taken off, and a relative one is sought in `currentFolder`. Each "%20" becomes a blank. Nothing
/// is ever fetched.
CheckedLink CheckLink(const QString &link,
                      const QString &projectFolder,
                      const QString &currentFolder);

/// Takes each "../" or "..\" off the front of a link, and a folder off `folder` for it, then joins
/// the two with the platform's separator: "../img/a.gif" in "/site/pages" gives "/site/img/a.gif".
/// Where no folder is left, the rest stands in the root.
QString ResolveUpward(QStringView link, QStringView folder);
bool LeadsUpward(QStringView link);
QString WithBlanks(QString link);
/// The folder of a page without the separator at its end, as `ResolveUpward` wants it; the root
/// gives an empty text.
QString LinkFolder(QString folder);

/// The plain file that a path means, empty when there is none. What is no absolute path starts from
/// `currentFolder`; both "/" and "\" separate, unless there is a file with a "\" in its name.
QString FileOnDisk(const QString &path, const QString &currentFolder);

} // namespace brenix
