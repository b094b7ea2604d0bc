#include "tags/frmTagCode.h"

#include "tags/InsertMarkup.h"
#include "tags/NumericEntities.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Columns = 44;
    constexpr int Lines = 6;

} // namespace

frmTagCode::frmTagCode(DocumentModel &page, QWidget *parent)
    : FormDialog(u"frmTagCode", u"Transelate normal text into entities"_s, parent)
    , m_page(page)
{
    QPlainTextEdit *text = Rows().LongText(u"Text1", u"&Text:"_s, m_text);
    text->setMinimumSize(fontMetrics().averageCharWidth() * Columns,
                         fontMetrics().lineSpacing() * Lines);
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});
}

bool frmTagCode::Accepted()
{
    const QString entities = NumericEntities(m_text);
    if (!entities.isEmpty())
        InsertMarkup(m_page, entities);
    return true;
}

} // namespace brenix
