#include "support/Pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qint64 LargestFile = 32 * 1024 * 1024;
    constexpr qint64 LargestDrawing = 1024 * 1024; // SVG: drawn as a whole for any size
    constexpr qint64 MostPixels = 32'000'000; // which is as much as the reader allocates
    constexpr qint64 MostPreviewPixels = 8'000'000;
    constexpr qint64 MostPreviewJpegPixels = 24'000'000; // scaled while it is decoded
    constexpr qint64 MostMeasuredJpegPixels = 250'000'000;
    constexpr int MeasuredSide = 64; // of what is kept of a picture that is only measured

    // The reader takes a JPEG that is cut off for a whole one. Behind the start of the scan an end
    // mark is the picture's own; before it there may be a small picture with one.
    bool IsWholeJpeg(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        const QByteArray bytes = file.readAll();
        qsizetype segment = 2;
        while (segment + 4 <= bytes.size() && bytes.mid(segment, 2) != "\xFF\xDA") {
            const bool isFiller = bytes[segment + 1] == '\xFF';
            segment += isFiller ? 1 : 2 + qFromBigEndian<quint16>(bytes.constData() + segment + 2);
        }
        return bytes.indexOf("\xFF\xD9", segment) >= 0;
    }

    // Sets the reader up; false for a file that is no picture or would take too long.
    bool IsReadable(QImageReader &reader, qint64 mostPixels, qint64 mostJpegPixels)
    {
        const QFileInfo file(reader.fileName());
        if (!file.isFile())
            return false; // a pipe would be waited for
        reader.setDecideFormatFromContent(true);
        reader.setAutoTransform(true);
        const QByteArray format = reader.format();
        const qint64 largest = format.startsWith("svg") ? LargestDrawing : LargestFile;
        const qint64 most = format == "jpeg" ? mostJpegPixels : mostPixels;
        if (file.size() > largest)
            return false; // asking for the size of a drawing reads all of it
        const QSize size = reader.size();
        return !size.isEmpty() && qint64(size.width()) * size.height() <= most
            && (format != "jpeg" || IsWholeJpeg(reader.fileName()));
    }

} // namespace

QString PictureFile(const QString &folder, const QString &name)
{
    const QString resolved
        = QUrl::fromPercentEncoding(name.toUtf8()).replace(u'\\', u'/').remove(QChar(u'\0'));
    for (const QString &candidate : {name, resolved}) {
        if (QFileInfo(folder + candidate).isFile())
            return folder + candidate;
    }
    return {};
}

QImage ReadPreview(const QString &path, int side)
{
    QImageReader reader(path);
    if (!IsReadable(reader, MostPreviewPixels, MostPreviewJpegPixels))
        return {};
    reader.setScaledSize(PreviewSize(reader.size(), side));
    return reader.read();
}

QImage ReadPicture(const QString &path)
{
    QImageReader reader(path);
    return IsReadable(reader, MostPixels, MostPixels) ? reader.read() : QImage();
}

QSize MeasurePicture(const QString &path)
{
    QImageReader reader(path);
    if (!IsReadable(reader, MostPixels, MostMeasuredJpegPixels))
        return {};
    const QSize size = reader.size();
    const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    if (reader.format() == "jpeg")
        reader.setScaledSize(PreviewSize(size, MeasuredSide));
    if (reader.read().isNull())
        return {}; // damaged
    return isTurned ? size.transposed() : size;
}

QSize PreviewSize(const QSize &picture, int side)
{
    if (picture.width() <= side && picture.height() <= side)
        return picture;
    return picture.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

} // namespace brenix
