#include "app/Form32.h"

using namespace Qt::StringLiterals;

namespace brenix {

Form32::Form32(std::function<void(const QString &)> insert, QWidget *parent)
    : ReferenceWindow(
        {.name = u"Form32", .title = u"Functions"_s, .file = u"Reference/functions.txt"_s},
        std::move(insert),
        parent)
{
}

} // namespace brenix
