#include "tags/NumericEntities.h"

using namespace Qt::StringLiterals;

namespace brenix {

QString NumericEntities(QStringView text)
{
    QString entities;
    for (const uint number : text.toUcs4())
        entities += u"&#"_s + QString::number(number) + u';';
    return entities;
}

} // namespace brenix
