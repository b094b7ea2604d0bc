#include "app/CharacterPane.h"

#include "app/PaneList.h"
#include "app/SkinIcons.h"
#include "tags/Entities.h"
#include "tags/frmTagCode.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString Separator = u" - "_s; // between a character and its entity

}

CharacterPane::CharacterPane(ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_activePage(std::move(activePage))
{
    setObjectName(u"Chars"_s);
    QListWidget *list = NewPaneList(u"List7"_s, u"Special Characters"_s, this);
    list->addItems(CharacterMapRows());
    auto *find = new QLineEdit(this);
    find->setObjectName(u"Find"_s);
    find->setAccessibleName(u"Find a character by its name"_s);
    find->setToolTip(find->accessibleName());
    find->setPlaceholderText(u"Find"_s);
    find->setClearButtonEnabled(true);
    connect(find, &QLineEdit::textChanged, list, [list](const QString &name) {
        list->clear();
        list->addItems(CharacterMapRows(name));
        list->setCurrentRow(name.isEmpty() ? -1 : 0);
    });
    connect(find, &QLineEdit::returnPressed, list, [list] {
        if (list->currentItem())
            emit list->itemActivated(list->currentItem());
    });
    connect(list, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        InsertIntoPage(m_activePage, item->text().section(Separator, 1));
    });

    auto *caption = new QLabel(u"Special Characters"_s, this);
    caption->setBuddy(list);
    auto *translate = new QToolButton(this);
    translate->setObjectName(u"Button1_4"_s);
    translate->setIcon(ProgramIcon(u"CharCode"));
    translate->setToolTip(u"Transelate into charcode"_s);
    translate->setAccessibleName(translate->toolTip());
    translate->setAutoRaise(true);
    connect(translate, &QToolButton::clicked, this, &CharacterPane::Translate);

    auto *head = new QHBoxLayout;
    head->addWidget(caption, 1);
    head->addWidget(translate);
    QVBoxLayout *layout = NewPaneLayout(this);
    layout->addLayout(head);
    layout->addWidget(find);
    layout->addWidget(list, 1);
    setFocusProxy(list);
}

void CharacterPane::Translate()
{
    if (DocumentModel *page = m_activePage())
        frmTagCode(*page, window()).exec();
}

} // namespace brenix
