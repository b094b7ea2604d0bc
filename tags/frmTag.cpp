#include "tags/frmTag.h"

#include "tags/InsertMarkup.h"
#include "tags/TagNameList.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace brenix {

frmTag::frmTag(DocumentModel &page, QWidget *parent)
    : FormDialog(u"frmTag", u"Insert Tag"_s, parent)
    , m_page(page)
    , m_name(InsertTagNames().constFirst())
{
    QListWidget *names = Rows().List(u"List1", u"&Tag:"_s, InsertTagNames(), m_name);
    connect(names, &QListWidget::itemDoubleClicked, this, &frmTag::accept);
    Rows().Check(u"Check1", u"&Insert end tag also"_s, m_withEndTag);
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});
    names->setFocus();
}

bool frmTag::Accepted()
{
    InsertMarkup(m_page, InsertTagMarkup(m_name, m_withEndTag));
    return true;
}

} // namespace brenix
