#include "checks/Overview.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr QChar KeyLetter = u'E';

    bool IsRoot(const PageElement &element)
    {
        return element.tagName.compare(u"HTML", Qt::CaseInsensitive) == 0;
    }

} // namespace

QList<OverviewNode> OverviewTree(const QList<PageElement> &elements)
{
    constexpr int none = -1;
    QList<OverviewNode> nodes;
    std::vector<int> nodeOf(size_t(elements.size()), none);
    for (int i = 0; i < elements.size(); ++i) {
        const PageElement &element = elements[i];
        const bool isBelow = element.parent >= 0 && element.parent < i;
        const int parent = isBelow ? nodeOf[size_t(element.parent)] : none;
        if (parent == none && !(nodes.isEmpty() && IsRoot(element)))
            continue;
        nodeOf[size_t(i)] = int(nodes.size());
        nodes += {KeyLetter + QString::number(i), element.tagName, parent};
    }
    return nodes;
}

QString ElementStatus(const QList<PageElement> &elements, const QString &key)
{
    bool isNumber = false;
    const int index = key.mid(1).toInt(&isNumber);
    if (!isNumber || index < 0 || index >= elements.size())
        return {};
    const PageElement &element = elements[index];
    if (!element.tagName.isEmpty())
        return u"<%1>"_s.arg(element.tagName.toLower());
    return QString(element.text).remove(u"\r\n"_s).toLower();
}

} // namespace brenix
