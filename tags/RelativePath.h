#pragma once

#include <QString>

#include <optional>

namespace brenix {

class DocumentModel;

/// The path that leads from the folder `base` to the file `target`, both as "\" paths. "C:\web\"
/// and "C:\web\img\a.gif" give "img/a.giff": the result is one character too long, and every caller
/// takes the last one off. A path on another drive comes back as it is, and so loses a letter to
/// its caller. Where one folder's name begins with the other's, a folder is lost, or, as from
/// "C:\a\" to "C:\ab.txt", there is no result. An empty target gives an empty path. `base` stays
/// changed: it gets the separator at its end that it lacked.
std::optional<QString> RelativePath(const QString &target, QString &base);

/// `RelativePath` as its callers want it: "\" paths in, the last character taken off, "file://" and
/// the whole path where there is no result. Paths of this system that are written with "/" lead to
/// their file always: "/web/" and "/webs/a.htm" give "../webs/a.htm".
QString LinkPath(const QString &path, const QString &folder);

/// What a file button puts into its field for a chosen file: the path that leads there from the
/// page's folder, or "file://" and the whole path for a page that has no file of its own
/// (`IsUntitled(page.Caption())`, of which the caller tells the author). Characters that would end
/// the attribute or mean something else in a link (quotes, angle brackets, "&", "#", "?", "%",
/// blanks, control characters) come as "%" and two digits; letters of all languages stay.
QString LinkAddress(const DocumentModel &page, const QString &path);

} // namespace brenix
