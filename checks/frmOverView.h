#pragma once

#include "support/BrowserView.h"

#include <QDialog>

#include <functional>

class QStatusBar;
class QTreeWidget;

namespace brenix {

class DocumentModel;

/// The module's browser view; null where there is no web engine.
BrowserView *MakeBrowserView(QWidget *parent);

/// "Page Overview": the tree of a page's elements beside the page as it is shown. The page must
/// have been saved; of one without a file the window stays empty.
class frmOverView : public QDialog
{
public:
    using Maker = std::function<BrowserView *(QWidget *parent)>;
    explicit frmOverView(DocumentModel &page,
                         QWidget *parent = nullptr,
                         const Maker &makeBrowser = MakeBrowserView);

private:
    void ShowPage(BrowserView *browser, const QString &file);
    void BuildTree(const QList<PageElement> &elements);

    QTreeWidget *m_tree;
    QStatusBar *m_status;
    QList<PageElement> m_elements;
};

} // namespace brenix
