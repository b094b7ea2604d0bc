#include "app/Form31.h"

using namespace Qt::StringLiterals;

namespace brenix {

Form31::Form31(std::function<void(const QString &)> insert, QWidget *parent)
    : ReferenceWindow(
        {.name = u"Form31", .title = u"ADO objects"_s, .file = u"Reference/ado.txt"_s},
        std::move(insert),
        parent)
{
}

} // namespace brenix
