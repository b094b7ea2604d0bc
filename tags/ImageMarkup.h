#pragma once

#include <QString>

namespace brenix {

/// What is filled in `frmImage`.
struct Image
{
    QString source; ///< `Text1`
    QString alternative; ///< `Text2`
    QString border; ///< `Combo1`
    QString height; ///< `Text4`
    QString width; ///< `Text3`
    QString alignment = QStringLiteral("(None)"); ///< `Combo2`
    QString link; ///< `Combo3`
    QString ownHeight; ///< `Text5`: that of the picture itself; another in `Text4` is shown bold
    QString ownWidth; ///< `Text6`
};

/// What edit mode writes over the tag. "alt" and "border" are always there, sizes only where they
/// are filled in, the alignment unless it is "(None)".
QString ImageTag(const Image &image);
/// What is inserted: the tag, in a link when there is one.
QString ImageMarkup(const Image &image);

/// Edit mode: the tag's attributes whose names are in lower case. The picture's own width is "453"
/// then, whatever the tag says, unless it has no attributes at all.
Image ReadImage(QString tag);

/// What "Auto generate" puts into `Text2`: "Image: a.gif (20x10)".
QString GeneratedAlternative(const Image &image);

/// The file of an image address: what follows "file://" (in any case), otherwise the address in the
/// page's folder. "%20" and its like stand for their characters, and "\" for "/", unless a file is
/// really named so.
QString ImageFile(const QString &source, const QString &folder);

} // namespace brenix
