#include "insert/frmHyperlink.h"

#include "support/DocumentModel.h"
#include "support/Help.h"
#include "support/SourceView.h"
#include "tags/ChooseLink.h"
#include "tags/EditTag.h"
#include "tags/InsertMarkup.h"
#include "tags/RecentBox.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Kind
    {
        LinkKind kind;
        const char16_t *caption;
    };
    constexpr Kind Kinds[] = {{LinkKind::Exist, u"Existing file"},
                              {LinkKind::Inside, u"Inside Document"},
                              {LinkKind::Mail, u"Mail Address"}};

    constexpr int AddressLetters = 40;

} // namespace

frmHyperlink::frmHyperlink(DocumentModel &page, Mode mode, QWidget *parent)
    : FormDialog(u"frmHyperlink", u"Insert HyperLink"_s, parent)
    , m_page(page)
    , m_mode(mode)
    , m_recent(SplitRecentAddresses(ReadRecentAddresses()))
    , m_kinds(new QTreeWidget(this))
    , m_pages(new QStackedWidget(this))
{
    if (mode == Mode::Edit)
        m_link = ReadHyperlink(page.rtfText().SelText());
    BuildKinds();
    const QList<Form *> columns = Rows().Columns({0, 1}, 1);
    columns[0]->Below(u"TW", {}, m_kinds);
    m_kinds->setAccessibleName(u"Kind of link"_s);
    columns[1]->Add(m_pages, 1);
    BuildAddressPage();
    BuildAnchorPage();
    BuildMailPage();
    if (mode == Mode::Insert)
        Rows().Text(u"Text1", u"Hyperlink &Text:"_s, m_link.text);
    AddButtons({.ok = u"Command2", .cancel = u"Command3", .help = u"Command1"},
               [] { ShowHelp(u"HYPERLINK"_s); });
    m_address->setFocus();
}

void frmHyperlink::BuildKinds()
{
    m_kinds->setHeaderHidden(true);
    m_kinds->setRootIsDecorated(false);
    m_kinds->setFixedWidth(fontMetrics().averageCharWidth() * 24);
    for (const Kind &kind : Kinds)
        new QTreeWidgetItem(m_kinds, {QString::fromUtf16(kind.caption)});
    m_kinds->setCurrentItem(m_kinds->topLevelItem(0));
    connect(m_kinds, &QTreeWidget::currentItemChanged, this, &frmHyperlink::ShowKind);
}

Form &frmHyperlink::AddPage(const char16_t *name)
{
    auto *page = new QWidget;
    page->setObjectName(QString::fromUtf16(name));
    m_pages->addWidget(page);
    return Rows().Inside(page);
}

void frmHyperlink::BuildAddressPage()
{
    Form &form = AddPage(u"Exist");
    m_address = form.Combo(u"AutoComplete1",
                           u"Please enter the &address you want to link to:"_s,
                           m_recent.addresses,
                           m_link.address);
    m_address->setMinimumContentsLength(AddressLetters);
    m_address->installEventFilter(this);
    connect(m_address->lineEdit(), &QLineEdit::textEdited, this, &frmHyperlink::CompleteAddress);
    form.ChooserBeside(
        u"Command4", u"&Browse..."_s, [this](const QString &) { return ChooseTarget(); });
    form.AddStretch();
}

void frmHyperlink::BuildAnchorPage()
{
    Form &form = AddPage(u"Picture1");
    m_anchors = form.List(u"List1",
                          u"&Select the possision in the document that you want to link to:"_s,
                          {},
                          m_link.anchor);
    connect(m_anchors, &QListWidget::itemDoubleClicked, this, &frmHyperlink::accept);
}

void frmHyperlink::BuildMailPage()
{
    Form &form = AddPage(u"Mail");
    QComboBox *mail = form.Combo(u"Combo3",
                                 u"Please enter the &mail address you want to link to:"_s,
                                 m_recent.mail,
                                 m_link.mail);
    auto *recent = new QListWidget;
    recent->addItems(m_recent.mail);
    form.Below(u"List2", u"&Recently used mail addresses"_s, recent);
    connect(recent, &QListWidget::currentTextChanged, mail, &QComboBox::setEditText);
}

void frmHyperlink::ShowKind()
{
    const int index = m_kinds->indexOfTopLevelItem(m_kinds->currentItem());
    if (index < 0)
        return;
    m_link.kind = Kinds[index].kind;
    m_pages->setCurrentIndex(index);
    if (m_link.kind != LinkKind::Inside)
        return;
    m_anchors->clear();
    m_anchors->addItems(AnchorsOf(m_page.rtfText().Text()));
}

QString frmHyperlink::ChooseTarget()
{
    const QString path = OpenFileName(LinkTargets(m_page));
    if (path.endsWith(u"url", Qt::CaseInsensitive))
        return ShortcutAddress(ShortcutLine(path).value_or(QString()));
    return path.isEmpty() ? path : LinkTo(m_page, path);
}

void frmHyperlink::CompleteAddress(const QString &typed)
{
    const QString whole = WithScheme(typed);
    if (whole == typed)
        return;
    QLineEdit *box = m_address->lineEdit();
    const int caret = box->cursorPosition() + int(whole.size() - typed.size());
    box->setText(whole);
    box->setCursorPosition(caret);
}

bool frmHyperlink::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_address || event->type() != QEvent::KeyPress)
        return FormDialog::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!isEnter || !(key->modifiers() & Qt::ControlModifier))
        return false;
    m_address->setEditText(WebSiteOf(m_address->currentText()));
    return true;
}

bool frmHyperlink::Accepted()
{
    StoreRecentAddresses(JoinRecentAddresses(m_recent, HyperlinkAddress(m_link)));
    if (m_mode == Mode::Insert)
        InsertMarkup(m_page, HyperlinkMarkup(m_link));
    else
        ReplaceTag(m_page.rtfText(), HyperlinkStartTag(m_link));
    return true;
}

} // namespace brenix
