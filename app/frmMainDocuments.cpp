#include "app/NewDocumentPane.h"
#include "app/PaneList.h"
#include "app/RecentFiles.h"
#include "app/StandardPages.h"
#include "app/ToolboxPanes.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "editor/CodeHighlight.h"
#include "support/AuthorFile.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"
#include "support/UntitledPages.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr char16_t OpenFilter[]
        = u"HTML files (*.html,*.htm,*.shtml)|*.htm;*.html;*.shtml|CSS files (*.css)|*.css|"
          u"JavaScript files (*.js,*.jss)|*.jss;*.js|VBScript files (*.vbs)|*.vbs|ASP files "
          u"(*.asp)|*.asp|"
          u"ColdFusion markup files (*.cfm)|*.cfm|PHP files (*.php,*.php3,*.pht,*.phtml)|"
          u"*.php;*.php3;*.pht;*.phtml|SGML files (*.xml,*.dtd,*.xsl)|*.xml;*.dtd;*.xsl|CGI files "
          u"(*.cgi)|*.cgi|"
          u"Extensible HTML File (*.xhtml)|*.xhtml|All Files (*.*)|*.*";

    // What is proposed as a template's name: the file's, without its ending, in capitalised form.
    QString TemplateProposal(const QString &caption)
    {
        QString name = FileNameOf(caption).section(u'.', 0, 0).toLower();
        if (!name.isEmpty())
            name[0] = name[0].toUpper();
        return name == u"Index" ? u"Home"_s : name;
    }

} // namespace

frmDocument *frmMain::LoadNewDoc()
{
    ++m_documentCounter;
    const QMdiSubWindow *current = m_area->currentSubWindow();
    const bool maximised = !current || current->isMaximized();
    auto *document = new frmDocument(*this, UntitledCaption(m_documentCounter));
    connect(document, &frmDocument::Activated, this, &frmMain::OnDocumentActivated);
    connect(document, &frmDocument::CaptionChanged, this, &frmMain::OnDocumentActivated);
    connect(document, &frmDocument::PreviewPainted, this, [this, document] {
        if (document == ActiveForm())
            SetAddress(document->lblAddress());
        emit PreviewPainted();
    });
    connect(document, &frmDocument::PreviewStatus, m_previewText, &QLabel::setText);
    connect(document, &frmDocument::DesignChanged, this, &frmMain::FollowDesign);
    connect(document, &frmDocument::ContextMenu, this, [this](const QPoint &place) {
        m_menu->MenuOf(u"mnuEdit"_s)->popup(place);
    });
    FollowSelection(*document);
    FollowMacroKeys(*document);
    QMdiSubWindow *window = m_area->addSubWindow(document);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowIcon(windowIcon());
    // Closing is asked for by Ctrl+W and Ctrl+F4 of ours.
    window->systemMenu()->actions().constLast()->setShortcuts(QList<QKeySequence>());
    maximised ? window->showMaximized() : window->show();
    m_area->setActiveSubWindow(window);
    document->Source().SetFocus();
    return document;
}

void frmMain::OpenDoc()
{
    OpenFrom({});
}

void frmMain::OpenFrom(const QString &folder)
{
    const QString path = OpenFileName(
        {.title = u"Open"_s, .filter = QString::fromUtf16(OpenFilter), .name = folder});
    if (!path.isEmpty())
        OpenPath(path);
}

void frmMain::OpenPath(const QString &path)
{
    frmDocument *document = LoadNewDoc();
    document->OpenFile(path);
    document->Modyfied = u"0"_s;
    document->rtfText().AddUndo();
    AddRecentFile(path);
    if (m_newDocumentPane)
        m_newDocumentPane->RebuildOpenList();
}

// The page takes the way through a file in the exchange directory; where that cannot be written
// there is no page.
void frmMain::FillActive(const QString &page, int caret)
{
    const QString path = ExchangeRoot(u'C') + QDir::separator() + u"tmp.html_"_s;
    if (!WriteAuthorFile(path, page.toUtf8()).isEmpty())
        return;
    ForActive([&](frmDocument &document) {
        document.Modyfied = u"0"_s;
        document.LoadText(path);
        document.rtfText().SetSelStart(caret);
    });
    QFile::remove(path);
}

void frmMain::HTMLdoc()
{
    FillActive(HtmlPage(QDate::currentDate()), HtmlPageCaret);
}

void frmMain::sHTMLdoc()
{
    FillActive(SimpleHtmlPage(QDate::currentDate()), SimpleHtmlPageCaret);
}

void frmMain::NewDocument(const QString &kind)
{
    frmDocument *document = LoadNewDoc();
    if (kind == u"HTML Document")
        HTMLdoc();
    else if (kind == u"Simple HTML Document")
        sHTMLdoc();
    else if (kind == u"XHTML Document")
        document->StartWith(XhtmlPage(), XhtmlPageCaret());
    document->rtfText().AddUndo();
    document->Modyfied = u"0"_s;
}

void frmMain::OpenListRow(int row)
{
    const QString recent = RecentFileOfRow(row);
    if (row == 0)
        OpenDoc();
    else if (!recent.isEmpty())
        OpenPath(recent);
}

void frmMain::OpenTemplate(const QString &name)
{
    frmDocument *document = LoadNewDoc();
    document->LoadText(AppPath(QString(u"Templates/"_s + name)));
    document->rtfText().AddUndo();
    document->Modyfied = u"0"_s;
}

void frmMain::DeleteTemplate(const QString &name)
{
    const Answer answer = MsgBox(
        u"Do you want to delete the template '"_s + name + u"'?"_s, Buttons::YesNo, Icon::Question);
    if (answer != Answer::Yes)
        return;
    QFile file(AppPath(QString(u"Templates/"_s + name)));
    if (file.remove() || !file.exists())
        m_newDocumentPane->RemoveTemplate(name);
    else
        MsgBox(u"Can't delete '"_s + name + u"'\n\n"_s + file.errorString(),
               Buttons::Ok,
               Icon::Critical);
}

void frmMain::SaveAsTemplate()
{
    frmDocument *document = ActiveForm();
    if (!document)
        return;
    const QString name = InputBox(u"Type a description in the textbox below:"_s,
                                  TemplateProposal(document->Caption()))
                             .trimmed();
    if (name.isEmpty())
        return;
    // A template lies in the folder itself, whatever was typed.
    if (FileNameOf(name) != name || name == u"." || name == u"..") {
        MsgBox(u"Can't save '"_s + name + u"'\n\nA description cannot hold \"/\" or \"\\\"."_s,
               Buttons::Ok,
               Icon::Critical);
        return;
    }
    if (document->SaveCopy(AppPath(QString(u"Templates/"_s + name))) && m_newDocumentPane)
        m_newDocumentPane->AddTemplate(name);
}

void frmMain::OnWindowActivated(QMdiSubWindow *window)
{
    auto *document = window ? qobject_cast<frmDocument *>(window->widget()) : nullptr;
    if (document)
        document->Form_Activate();
    else if (m_area->subWindowList().isEmpty())
        OnDocumentActivated();
}

void frmMain::OnDocumentActivated()
{
    frmDocument *document = ActiveForm();
    EnableDocumentCommands(document != nullptr);
    RebuildTabs();
    ShowCaret();
    m_encodingPanel->setVisible(document != nullptr);
    if (!document) {
        // The design bars act on a view that goes with its document.
        ShowBarsFor({});
        ShowModified({});
        return;
    }
    m_encodingPanel->setText(document->Source().EncodingName());
    ShowBarsFor(document->Status());
    m_menu->ActionOf(document->SplitHV() == u"1" ? u"mnuSplitV"_s : u"mnuSplitH"_s)
        ->setChecked(true);
}

void frmMain::RebuildTabs()
{
    const QList<frmDocument *> documents = Documents();
    while (m_tabStrip->count() > documents.size())
        m_tabStrip->removeTab(m_tabStrip->count() - 1);
    while (m_tabStrip->count() < documents.size())
        m_tabStrip->addTab({});
    for (int i = 0; i < documents.size(); ++i) {
        m_tabStrip->setTabText(i, FileNameOf(documents[i]->Caption()).replace(u"&"_s, u"&&"_s));
        m_tabStrip->setTabToolTip(i, PlainTip(documents[i]->Caption()));
    }
    m_tabStrip->setCurrentIndex(int(documents.indexOf(ActiveForm())));
    m_panes->Follow();
}

// Pages of the same name share a caption: the first of them is found.
void frmMain::ActivateTab(int tab)
{
    const QList<frmDocument *> documents = Documents();
    if (tab < 0 || tab >= documents.size())
        return;
    const QString name = FileNameOf(documents[tab]->Caption());
    for (frmDocument *document : documents) {
        if (FileNameOf(document->Caption()) == name) {
            m_area->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(document->parentWidget()));
            break;
        }
    }
    RebuildTabs();
}

void frmMain::RebuildWindowMenu()
{
    QMenu *menu = m_menu->MenuOf(u"mnuWindow"_s);
    qDeleteAll(m_windowItems);
    m_windowItems = {menu->addSeparator()};
    int number = 0;
    for (QMdiSubWindow *window : m_area->subWindowList()) {
        const auto *document = qobject_cast<frmDocument *>(window->widget());
        if (!document)
            continue;
        const QString mark = ++number <= 9 ? u"&%1 "_s.arg(number) : QString();
        QAction *item = menu->addAction(mark + QString(document->Caption()).replace(u'&', u"&&"_s));
        item->setCheckable(true);
        item->setChecked(document == ActiveForm());
        connect(item, &QAction::triggered, window, [this, window] {
            m_area->setActiveSubWindow(window);
        });
        m_windowItems.append(item);
    }
}

} // namespace brenix
