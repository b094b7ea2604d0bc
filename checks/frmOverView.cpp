#include "checks/frmOverView.h"

#include "checks/Overview.h"
#include "checks/PageFile.h"
#include "support/DocumentModel.h"
#include "support/WebModule.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int CharactersWide = 120;
    constexpr int RowsHigh = 36;

    void AddNote(QSplitter *parts, const QString &text)
    {
        auto *note = new QLabel(text, parts);
        note->setAlignment(Qt::AlignCenter);
        note->setWordWrap(true);
        parts->addWidget(note);
    }

} // namespace

BrowserView *MakeBrowserView(QWidget *parent)
{
    WebModule *module = LoadWebModule();
    return module ? module->CreateBrowserView(parent) : nullptr;
}

frmOverView::frmOverView(DocumentModel &page, QWidget *parent, const Maker &makeBrowser)
    : QDialog(parent)
    , m_tree(new QTreeWidget(this))
    , m_status(new QStatusBar(this))
{
    setObjectName(u"frmOverView"_s);
    setWindowTitle(u"Page Overview"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_tree->setObjectName(u"tvwView"_s);
    m_tree->setAccessibleName(u"Elements of the page"_s);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_status->setObjectName(u"statBar"_s);
    auto *parts = new QSplitter(this);
    parts->addWidget(m_tree);
    // Before the window is shown, which the web engine needs.
    BrowserView *browser = makeBrowser(parts);
    if (browser && browser->Widget())
        parts->addWidget(browser->Widget());
    else if (!browser)
        AddNote(parts, u"The page cannot be shown.\n\n"_s + WebModuleError());
    parts->setChildrenCollapsible(false);
    // A web view has no width of its own, and would get none.
    const int third = fontMetrics().averageCharWidth() * CharactersWide / 3;
    parts->setSizes({third, 2 * third});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(parts, 1);
    layout->addWidget(m_status);
    resize(fontMetrics().averageCharWidth() * CharactersWide,
           fontMetrics().lineSpacing() * RowsHigh);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *node) {
        m_status->showMessage(
            node ? ElementStatus(m_elements, node->data(0, Qt::UserRole).toString()) : QString());
    });
    const QString file = FileOfPage(page);
    if (browser && !file.isEmpty())
        ShowPage(browser, file);
}

void frmOverView::ShowPage(BrowserView *browser, const QString &file)
{
    // A frame inside the page does not come here, and an answer may come when the window has gone.
    browser->NavigateComplete = [self = QPointer(this), browser](const QString &) {
        browser->AskElements([self](const QList<PageElement> &elements) {
            if (self)
                self->BuildTree(elements);
        });
    };
    browser->Navigate(u"file://"_s + QDir::toNativeSeparators(file));
}

void frmOverView::BuildTree(const QList<PageElement> &elements)
{
    m_tree->clear();
    m_elements = elements;
    QList<QTreeWidgetItem *> nodes;
    for (const OverviewNode &node : OverviewTree(elements)) {
        auto *item = new QTreeWidgetItem({node.caption});
        item->setData(0, Qt::UserRole, node.key);
        if (node.parent >= 0)
            nodes[node.parent]->addChild(item);
        nodes += item;
    }
    if (nodes.isEmpty())
        return;
    // Once it is whole, the view is told of it only once.
    m_tree->addTopLevelItem(nodes[0]);
    m_tree->expandToDepth(1);
    m_tree->setCurrentItem(nodes[0]);
}

} // namespace brenix
