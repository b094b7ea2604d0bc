#include "tags/ImageMarkup.h"

#include "tags/Quoted.h"
#include "tags/TovikHTMLParser.h"

#include <QDir>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString NoAlignment = u"(None)"_s;

    QString Attribute(const QString &name, const QString &value)
    {
        return u' ' + name + u'=' + Quoted(value);
    }

    QString AttributeIfAny(const QString &name, const QString &value)
    {
        return value.isEmpty() ? QString() : Attribute(name, value);
    }

    void TakeAttribute(Image &image, const QString &name, const QString &value)
    {
        if (name == u"src")
            image.source = value;
        else if (name == u"alt")
            image.alternative = value;
        else if (name == u"border")
            image.border = value;
        else if (name == u"height")
            image.height = image.ownHeight = value;
        else if (name == u"width")
            image.width = value;
        else if (name == u"align")
            image.alignment = value.left(1).toUpper() + value.mid(1).toLower();
        image.ownWidth = u"453"_s;
    }

} // namespace

QString ImageTag(const Image &image)
{
    const QString alignment
        = image.alignment == NoAlignment ? QString() : Attribute(u"align"_s, image.alignment);
    return u"<img"_s + Attribute(u"src"_s, image.source) + Attribute(u"alt"_s, image.alternative)
        + Attribute(u"border"_s, image.border) + AttributeIfAny(u"height"_s, image.height)
        + AttributeIfAny(u"width"_s, image.width) + alignment + u'>';
}

QString ImageMarkup(const Image &image)
{
    if (image.link.isEmpty())
        return ImageTag(image);
    return u"<a"_s + Attribute(u"href"_s, image.link) + u'>' + ImageTag(image) + u"</a>"_s;
}

Image ReadImage(QString tag)
{
    Image image;
    TovikHTMLParser parser;
    parser.HTMLProperty = [&image](const QString &name, const QString &value) {
        TakeAttribute(image, name, value);
    };
    parser.ParseHTML(tag);
    return image;
}

QString GeneratedAlternative(const Image &image)
{
    return u"Image: "_s + image.source + u" ("_s + image.width + u'x' + image.height + u')';
}

QString ImageFile(const QString &source, const QString &folder)
{
    const bool isLocal = source.startsWith(u"file://"_s, Qt::CaseInsensitive);
    QString start = isLocal ? QString() : folder;
    if (!isLocal && !start.endsWith(QDir::separator()))
        start += QDir::separator();
    const QString name = isLocal ? source.mid(7) : source;
    if (QFile::exists(start + name))
        return start + name;
    return start + QUrl::fromPercentEncoding(name.toUtf8()).replace(u'\\', u'/');
}

} // namespace brenix
