#include "insert/TableGrid.h"

using namespace Qt::StringLiterals;

namespace brenix {

QString GridTable(int rows, int columns, const QString &selection)
{
    QString table = u"<TABLE>\r\n"_s;
    for (int row = 1; row <= rows; ++row) {
        table += u" <TR>\r\n"_s;
        for (int column = 1; column <= columns; ++column) {
            table += u"  <TD>\r\n"
                     "   <! -- Cell (%1,%2) -- !>\r\n"
                     "  </TD>\r\n"_s.arg(column)
                         .arg(row);
        }
        table += u" </TR>\r\n"_s;
    }
    return table + u"</TABLE>"_s + selection;
}

} // namespace brenix
