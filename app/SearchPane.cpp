#include "app/SearchPane.h"

#include "app/PaneList.h"
#include "checks/FindReplace.h"
#include "checks/frmSearchResults.h"
#include "support/DocumentModel.h"
#include "support/MessageBoxes.h"
#include "support/SettingsStore.h"
#include "support/ShowSource.h"
#include "support/SourceView.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A pasted text has the line ends of where it was copied; in the page each is CR LF.
    QString TextOf(const QLineEdit &field)
    {
        return field.text().replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    }

} // namespace

SearchPane::SearchPane(ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_activePage(std::move(activePage))
    , m_fields(new QWidget(this))
{
    NewPaneLayout(this)->addWidget(m_fields);
    layout()->setAlignment(m_fields, Qt::AlignTop);
    m_fields->setObjectName(u"Search"_s);
    BuildFields();
    setFocusProxy(m_text);
    m_live->setChecked(IsSettingOn(u"Settings", u"LiveSearch", true));
    const auto enable = [this] {
        m_find->setEnabled(!m_text->text().isEmpty());
        m_replace->setEnabled(!m_text->text().isEmpty());
    };
    enable();
    connect(m_text, &QLineEdit::textChanged, this, enable);
    connect(m_text, &QLineEdit::textEdited, this, &SearchPane::Live);
    connect(m_text, &QLineEdit::returnPressed, m_find, &QPushButton::click);
    connect(m_replacement, &QLineEdit::returnPressed, m_replace, &QPushButton::click);
}

void SearchPane::BuildFields()
{
    auto *layout = new QVBoxLayout(m_fields);
    layout->setContentsMargins(0, 0, 0, 0);
    m_text = AddField(u"Text1"_s, u"Search for"_s, u"Enter the text you want to search for"_s);
    m_replacement = AddField(u"Text2"_s, u"Replace with"_s, {});
    m_all = AddCheck(u"Check1"_s, u"Replace all"_s, {});
    m_fromTop = AddCheck(
        u"Check2"_s, u"Start at the top"_s, u"Start the search at the top of the document"_s);
    m_live = AddCheck(u"Check3"_s, u"Live Search"_s, u"Search the document as you type"_s);
    m_find = AddButton(u"Command1"_s, u"Find!"_s, &SearchPane::FindInPage);
    m_find->setToolTip(u"Click to search"_s);
    m_replace = AddButton(u"Command2"_s, u"Replace"_s, &SearchPane::ReplaceInPage);
    AddButton(u"Command4"_s, u"Search Results"_s, &SearchPane::OpenResults);
}

QLineEdit *SearchPane::AddField(const QString &name, const QString &caption, const QString &tip)
{
    auto *label = new QLabel(caption, m_fields);
    auto *field = new QLineEdit(m_fields);
    field->setObjectName(name);
    field->setAccessibleName(caption);
    field->setToolTip(tip);
    label->setBuddy(field);
    m_fields->layout()->addWidget(label);
    m_fields->layout()->addWidget(field);
    return field;
}

QPushButton *SearchPane::AddButton(const QString &name,
                                   const QString &caption,
                                   void (SearchPane::*clicked)())
{
    auto *button = new QPushButton(caption, m_fields);
    button->setObjectName(name);
    m_fields->layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, clicked);
    return button;
}

QCheckBox *SearchPane::AddCheck(const QString &name, const QString &caption, const QString &tip)
{
    auto *check = new QCheckBox(caption, m_fields);
    check->setObjectName(name);
    check->setToolTip(tip);
    m_fields->layout()->addWidget(check);
    return check;
}

void SearchPane::Open(const QString &text)
{
    m_fields->show();
    if (!text.isEmpty())
        m_text->setText(text);
    m_text->setFocus();
    m_text->selectAll();
}

QString SearchPane::SearchText() const
{
    return TextOf(*m_text);
}

void SearchPane::SetSearchText(const QString &text)
{
    m_text->setText(text);
}

bool SearchPane::IsLiveSearch() const
{
    return m_live->isChecked();
}

// What is found is to be seen.
DocumentModel *SearchPane::SourcePage() const
{
    DocumentModel *page = m_activePage();
    return page && BringUpSource(*page) ? page : nullptr;
}

void SearchPane::FindInPage()
{
    DocumentModel *page = SourcePage();
    if (!page)
        return;
    const QString text = SearchText();
    const bool isFound = Find(page->rtfText(), text, m_fromTop->isChecked());
    if (isFound)
        page->rtfText().SetFocus();
    ListHits();
    if (!isFound)
        SayNotFound(u'"' + text + u'"');
}

void SearchPane::ReplaceInPage()
{
    DocumentModel *page = SourcePage();
    if (!page)
        return;
    SourceView &source = page->rtfText();
    const QString text = SearchText();
    if (m_all->isChecked())
        ReplaceAll(source, text, TextOf(*m_replacement), LetEventsRun);
    else if (!ReplaceNext(source, text, TextOf(*m_replacement), m_fromTop->isChecked()))
        SayNotFound(u'"' + text + u'"');
    source.SetFocus();
}

void SearchPane::SearchNext()
{
    DocumentModel *page = SourcePage();
    if (!page)
        return;
    if (FindNext(page->rtfText(), SearchText()))
        page->rtfText().SetFocus();
    else
        SayNotFound(u'\'' + SearchText() + u'\'');
}

void SearchPane::Live()
{
    DocumentModel *page = m_activePage();
    if (page && ShowsSource(*page) && IsLiveSearch() && !SearchText().isEmpty())
        LiveSearch(page->rtfText(), SearchText());
}

void SearchPane::ListHits()
{
    DocumentModel *page = m_activePage();
    if (!m_results || !page)
        return;
    m_results->SetHits({});
    std::vector<int> hits = Occurrences(page->rtfText().Text(), SearchText(), LetEventsRun);
    if (m_results)
        m_results->SetHits(std::move(hits));
}

// Docked it stands in the place of the fields, which come back when it goes.
void SearchPane::OpenResults()
{
    if (!m_results) {
        m_results = new frmSearchResults(this);
        connect(m_results, &frmSearchResults::HitChosen, this, &SearchPane::GoToHit);
        connect(m_results, &frmSearchResults::Floated, m_fields, &QWidget::show);
        connect(m_results, &QObject::destroyed, m_fields, &QWidget::show);
        static_cast<QBoxLayout *>(layout())->addWidget(m_results, 1);
    }
    if (m_results->IsDocked())
        m_fields->hide();
    m_results->show();
    m_results->setFocus();
    ListHits();
}

void SearchPane::GoToHit(int position)
{
    if (DocumentModel *page = SourcePage()) {
        page->rtfText().SetSelStart(position);
        page->rtfText().SetSelLength(int(SearchText().size()));
        page->rtfText().SetFocus();
    }
}

void SearchPane::SayNotFound(const QString &text)
{
    MsgBox(u"Can't find "_s + text, Buttons::Ok, Icon::Information);
}

} // namespace brenix
