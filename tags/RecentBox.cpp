#include "tags/RecentBox.h"

#include "support/MessageBoxes.h"
#include "tags/LinkFiles.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace brenix {

void StoreRecentAddresses(const QStringList &rows)
{
    static bool told = false;
    const QString error = WriteRecentAddresses(rows);
    if (!error.isEmpty() && !std::exchange(told, true))
        MsgBox(u"Can't save the recent addresses.\n\n"_s + error, Buttons::Ok, Icon::Warning);
}

} // namespace brenix
