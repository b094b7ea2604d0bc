#pragma once

#include <QImage>

namespace brenix {

/// The file that a page means by a name: `name` as it stands behind `folder` (which ends in a
/// separator); if there is none, the same with "\" as "/" and "%20" and its like resolved. Empty
/// when neither is a regular file.
QString PictureFile(const QString &folder, const QString &name);

/// A picture as a square of `side` device pixels holds it: larger ones are scaled down with their
/// aspect kept, while they are read; smaller ones stay as they are. A null image for a file that
/// cannot be read, is damaged, or is too large to be read while somebody waits (32 MB, a
/// drawing 1 MB; 8 million pixels, a JPEG 24 million).
QImage ReadPreview(const QString &path, int side);

/// A picture as it is. Null for a file that is no whole picture, or is larger than 32 MB or 32
/// million pixels.
QImage ReadPicture(const QString &path);
/// The size in pixels of such a picture, as it is shown, and of a JPEG of up to 250 million pixels;
/// empty for any other file.
QSize MeasurePicture(const QString &path);

/// The size that a picture takes in a square of `side`, at least 1 x 1.
QSize PreviewSize(const QSize &picture, int side);

} // namespace brenix
