#include "tags/TagDesignerText.h"

#include "tags/Quoted.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct PanelRow
    {
        QStringView attribute;
        DesignerPanel panel;
        QStringView values = {}; // with commas between them
    };
    // clang-format off
    constexpr PanelRow Panels[] = {
        {u"face",             DesignerPanel::FontDrop},
        {u"font",             DesignerPanel::FontDrop},
        {u"fontface",         DesignerPanel::FontDrop},
        {u"bordercolordark",  DesignerPanel::Color},
        {u"bordercolorlight", DesignerPanel::Color},
        {u"bordercolor",      DesignerPanel::Color},
        {u"alink",            DesignerPanel::Color},
        {u"vlink",            DesignerPanel::Color},
        {u"link",             DesignerPanel::Color},
        {u"text",             DesignerPanel::Color},
        {u"bgcolor",          DesignerPanel::Color},
        {u"src",              DesignerPanel::Hyper},
        {u"href",             DesignerPanel::Hyper},
        {u"noshade",          DesignerPanel::NoOption},
        {u"language",         DesignerPanel::Drop, u"JavaScript,JScript,VBScript"},
        {u"align",            DesignerPanel::Drop, u"Center,Left,Right"},
        {u"valign",           DesignerPanel::Drop, u"Baseline,Bottom,Middle,Top"},
        {u"target",           DesignerPanel::Drop, u"_self,_top,_blank,_parent"},
    };

    constexpr QStringView WithoutEndTag[] = {
        u"br", u"meta", u"hr", u"bgsound", u"li", u"!", u"param", u"frame", u"wbr", u"spacer",
        u"link", u"keygen", u"isindex", u"input", u"img", u"col", u"basefont", u"base", u"area",
    };
    // clang-format on

    PanelRow RowOf(QStringView attribute)
    {
        for (const PanelRow &row : Panels) {
            if (attribute == row.attribute)
                return row;
        }
        return {attribute, DesignerPanel::Default};
    }

    bool HasEndTag(const QString &name)
    {
        for (const QStringView other : WithoutEndTag) {
            if (name.compare(other, Qt::CaseInsensitive) == 0)
                return false;
        }
        return true;
    }

} // namespace

DesignerPanel PanelOfAttribute(QStringView attribute)
{
    return RowOf(attribute).panel;
}

QStringList DropValues(QStringView attribute)
{
    return RowOf(attribute).values.toString().split(u',', Qt::SkipEmptyParts);
}

QString DesignedAttribute(const QString &attribute, const QString &value)
{
    return attribute + u'=' + Quoted(value) + u' ';
}

QString DesignedAttribute(const QString &attribute)
{
    return attribute + u' ';
}

QString DesignedTag(const QString &name, const QString &code)
{
    QString attributes = code;
    // A blank and one more character count as no attribute.
    if (code.size() == 2 && code.front() == u' ')
        attributes.chop(1);
    const QString startTag = u'<' + name + (code.isEmpty() ? QString() : u' ' + attributes) + u'>';
    return HasEndTag(name) ? startTag + u"</"_s + name + u'>' : startTag;
}

} // namespace brenix
