#include "tests/support/SourceTree.h"

namespace brenix {

QString SourceFile(const char *relative)
{
    return QStringLiteral(BRENIX_SOURCE_TREE "/") + QString::fromUtf8(relative);
}

} // namespace brenix
