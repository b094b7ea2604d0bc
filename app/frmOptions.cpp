#include "app/frmOptions.h"

#include "app/frmDrive.h"
#include "support/Help.h"
#include "support/MessageBoxes.h"

#include <QBoxLayout>
#include <QDir>
#include <QFontDatabase>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyle>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

struct frmOptions::Page
{
    const char16_t *group;
    const char16_t *caption;
    const char16_t *name;
    void (frmOptions::*build)(Form &form);
};

// clang-format off
const frmOptions::Page frmOptions::Pages[] = {
    {u"General",            u"Startup",            u"FrameStartup",           &frmOptions::BuildStartup},
    {u"General",            u"Colors",             u"FrameColors",            &frmOptions::BuildColors},
    {u"General",            u"Font",               u"FrameFont",              &frmOptions::BuildFont},
    {u"General",            u"Syntax Language",    u"FrameSyntaxLanguage",    &frmOptions::BuildSyntaxLanguage},
    {u"General",            u"Integrated Browser", u"FrameIntegratedBrowser", &frmOptions::BuildIntegratedBrowser},
    {u"General",            u"Browserlist",        u"FrameBrowserlist",       &frmOptions::BuildBrowserlist},
    {u"General",            u"Color Picker",       u"FrameColorPicker",       &frmOptions::BuildColorPicker},
    {u"General",            u"Reset Settings",     u"FrameReset",             &frmOptions::BuildReset},
    {u"Automatic Features", u"Insert closing tag", u"FrameClosingTag",        &frmOptions::BuildClosingTag},
    {u"Automatic Features", u"Autocomplete",       u"FrameAutocomplete",      &frmOptions::BuildAutocomplete},
    {u"Automatic Features", u"Word Wrap",          u"FrameWordWrap",          &frmOptions::BuildWordWrap},
    {u"Automatic Features", u"AutoSave",           u"FrameAutoSave",          &frmOptions::BuildAutoSave},
    {u"Automatic Features", u"Tag Case",           u"FrameTagCase",           &frmOptions::BuildTagCase},
    {u"Design View",        u"Design",             u"FrameDesign",            &frmOptions::BuildDesign},
};
// clang-format on

namespace {

    constexpr int PageRole = Qt::UserRole;

    BrowserFinder SystemFinder(QWidget *window)
    {
        if (QDir::rootPath() == u"/")
            return PathFinder();
        return DriveFinder([window](const BrowserProgram &program) {
            frmDrive dialog(program, window);
            return dialog.exec() == QDialog::Accepted ? dialog.Root() : QString();
        });
    }

} // namespace

frmOptions::frmOptions(QWidget *parent)
    : FormDialog(u"frmOptions", u"Options"_s, parent)
    , Finder(SystemFinder(this))
    , m_options(ReadOptions())
    , m_fontSize(QString::number(m_options.fontSize))
    , m_tree(new QTreeWidget)
    , m_stack(new QStackedWidget)
    , m_title(new QLabel)
{
    auto *body = new QWidget(this);
    auto *columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(m_tree);
    auto *right = new QVBoxLayout;
    columns->addSpacing(12);
    columns->addLayout(right, 1);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    right->addWidget(m_title);
    right->addWidget(line);
    right->addWidget(m_stack, 1);
    Rows().Add(body, 1);
    AddButtons({.ok = u"cmdOk", .cancel = u"cmdCancel", .help = u"Command4"},
               [] { ShowHelp(u"OPTIONS"_s); });

    m_searchDone.setParent(this);
    m_tree->setObjectName(u"TreeView"_s);
    m_tree->setAccessibleName(u"Pages"_s);
    m_tree->setHeaderHidden(true);
    BuildPages();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &frmOptions::ShowPage);
    m_tree->setCurrentItem(m_tree->topLevelItem(0)->child(0));

    // Large enough for every page; where the screen is not, the larger pages scroll.
    QSize largest;
    for (const QScrollArea *page : m_stack->findChildren<QScrollArea *>(Qt::FindDirectChildrenOnly))
        largest = largest.expandedTo(page->widget()->sizeHint());
    const QSize missing = largest - m_stack->sizeHint();
    resize((sizeHint() + missing.expandedTo({0, 0})).boundedTo(screen()->availableSize()));
}

void frmOptions::BuildPages()
{
    QTreeWidgetItem *group = nullptr;
    for (const Page &page : Pages) {
        const QString groupName = QString::fromUtf16(page.group);
        if (!group || group->text(0) != groupName) {
            group = new QTreeWidgetItem(m_tree, {groupName});
            // A group shows its first page.
            group->setData(0, PageRole, m_stack->count());
        }
        auto *item = new QTreeWidgetItem(group, {QString::fromUtf16(page.caption)});
        item->setData(0, PageRole, m_stack->count());
        auto *scroll = new QScrollArea;
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        m_stack->addWidget(scroll);
        auto *frame = new QWidget;
        frame->setObjectName(QString::fromUtf16(page.name));
        scroll->setWidget(frame);
        Form &form = Rows().Inside(frame);
        (this->*page.build)(form);
        form.AddStretch();
    }
    m_tree->expandAll();
    m_tree->header()->setStretchLastSection(false);
    m_tree->resizeColumnToContents(0);
    m_tree->setFixedWidth(m_tree->columnWidth(0) + 2 * m_tree->frameWidth()
                          + m_tree->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    m_tree->header()->setStretchLastSection(true);
}

void frmOptions::ShowPage(const QTreeWidgetItem *item)
{
    const int page = item->data(0, PageRole).toInt();
    m_title->setText(QString::fromUtf16(Pages[page].caption));
    m_stack->setCurrentIndex(page);
    if (Pages[page].build == &frmOptions::BuildFont)
        ListFonts();
}

void frmOptions::LoadForms()
{
    m_fontSize = QString::number(m_options.fontSize);
    Rows().Load();
}

void frmOptions::StoreForms()
{
    Rows().Store();
    m_options.fontSize = m_fontSize.toInt();
}

bool frmOptions::Accepted()
{
    StoreForms();
    const QString error = WriteOptions(m_options);
    if (!error.isEmpty())
        MsgBox(u"Can't save the words of the autocomplete page.\n\n"_s + error,
               Buttons::Ok,
               Icon::Critical);
    if (Applied)
        Applied(m_options);
    return true;
}

void frmOptions::Reset()
{
    if (MsgBox(u"Are you sure?"_s, Buttons::OkCancel, Icon::Question) != Answer::Ok)
        return;
    StoreForms();
    m_options = ResetOptions(m_options);
    LoadForms();
    MsgBox(u"Reset complete!"_s, Buttons::Ok, Icon::Information);
}

void frmOptions::Search()
{
    m_searchDone.stop();
    StoreForms();
    SearchBrowsers(
        m_options.browsers,
        Finder,
        {.status =
             [this](const QString &text) {
                 m_search->setText(text);
                 m_search->repaint();
             },
         .tell = [](const QString &text) { MsgBox(text, Buttons::Ok, Icon::Information); }});
    LoadForms();
    m_searchDone.start();
}

/// Listing all fonts takes a while, and few users come for them.
void frmOptions::ListFonts()
{
    if (m_fonts->count() == 0)
        m_fonts->addItems(QFontDatabase::families());
    if (m_fonts->currentItem())
        return;
    // The one in use may not be installed here.
    if (m_fonts->findItems(m_options.fontName, Qt::MatchFixedString).isEmpty())
        m_fonts->insertItem(0, m_options.fontName);
    m_fonts->setCurrentItem(
        m_fonts->findItems(m_options.fontName, Qt::MatchFixedString).constFirst());
}

} // namespace brenix
