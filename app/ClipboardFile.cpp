#include "app/ClipboardFile.h"

#include "support/ListInput.h"

using namespace Qt::StringLiterals;

namespace brenix {

QString ClipboardFileText(const QStringList &elements)
{
    QString text;
    for (const QString &element : elements)
        text += element + u"\r\n"_s;
    return text;
}

QStringList ClipboardElements(QStringView fileText, qsizetype most, GoOn goOn)
{
    QStringList elements;
    ListInput input(fileText);
    Pulse pulse(std::move(goOn));
    std::optional<QString> field = input.Next();
    for (; field && pulse.Step(); field = input.Next()) {
        if (elements.size() == 2 * most)
            elements.remove(0, most);
        elements.append(*field);
    }
    return elements.mid(std::max(qsizetype(0), elements.size() - most));
}

} // namespace brenix
