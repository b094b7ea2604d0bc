#pragma once

#include <QString>

namespace brenix {

/// The path of a file of the checkout that the tests were built from, `relative` to its root.
QString SourceFile(const char *relative);

} // namespace brenix
