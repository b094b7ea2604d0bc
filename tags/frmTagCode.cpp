#include "tags/frmTagCode.h"

#include "editor/InsertMarkup.h"
#include "tags/NumericEntities.h"

#include <QPlainTextEdit>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Columns = 44;
    constexpr int Lines = 6;

    // Block by block: the whole text would come with other blanks than were typed.
    QString TextOf(const QPlainTextEdit &box)
    {
        QString text = box.document()->begin().text();
        for (QTextBlock line = box.document()->begin().next(); line.isValid(); line = line.next())
            text += u"\r\n"_s + line.text();
        return text;
    }

} // namespace

frmTagCode::frmTagCode(DocumentModel &page, QWidget *parent)
    : FormDialog(u"frmTagCode", u"Transelate normal text into entities"_s, parent)
    , m_page(page)
    , m_text(new QPlainTextEdit(this))
{
    m_text->setObjectName(u"Text1"_s);
    m_text->setAccessibleName(u"Text"_s);
    m_text->setTabChangesFocus(true);
    m_text->setMinimumSize(fontMetrics().averageCharWidth() * Columns,
                           fontMetrics().lineSpacing() * Lines);
    Rows().Add(m_text, 1);
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});
}

bool frmTagCode::Accepted()
{
    const QString entities = NumericEntities(TextOf(*m_text));
    if (!entities.isEmpty())
        InsertMarkup(m_page, entities);
    return true;
}

} // namespace brenix
