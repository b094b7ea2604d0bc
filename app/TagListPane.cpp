#include "app/TagListPane.h"

#include "app/PaneList.h"
#include "tags/TagCatalogue.h"

#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace brenix {

TagListPane::TagListPane(const QString &dialect, ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_filter(new QComboBox(this))
    , m_tags(NewPaneList(u"List4"_s, u"Tags"_s, this))
{
    setObjectName(u"Taglist"_s);
    m_filter->setObjectName(u"Filter"_s);
    m_filter->setAccessibleName(u"HTML version"_s);
    m_filter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_filter->addItems(DialectNames());
    m_filter->setCurrentText(dialect);
    m_filter->setMaxVisibleItems(m_filter->count());
    connect(m_filter, &QComboBox::currentTextChanged, this, [this](const QString &chosen) {
        Fill(chosen);
        emit DialectChosen(chosen);
    });
    connect(m_tags, &QListWidget::itemActivated, this, [activePage](QListWidgetItem *item) {
        InsertIntoPage(activePage, item->text());
    });
    QVBoxLayout *layout = NewPaneLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_tags, 1);
    setFocusProxy(m_tags);
    Fill(dialect);
}

void TagListPane::Fill(const QString &dialect)
{
    m_tags->clear();
    for (const QString &tag : TagsOfDialect(dialect))
        (new QListWidgetItem(tag, m_tags))->setToolTip(PlainTip(tag));
}

} // namespace brenix
