#include "support/WebDesignView.h"

#include "support/AuthorFile.h"
#include "support/DesignPage.h"
#include "support/PreviewCopies.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QWebEngineScript>

#include <chrono>
#include <utility>

namespace brenix {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

    // Laying out 300 000 paragraphs, 4 MB, takes the engine 9 s.
    std::chrono::milliseconds LoadLimit(const QString &page)
    {
        constexpr qsizetype million = 1'000'000; // characters
        return 10s + page.size() / million * 10s;
    }

    // The author's work hangs on this answer, and a busy machine may be slow to write out a large
    // page.
    constexpr auto textLimit = 10s;
    constexpr int restartLimit = 2;
    const QString ownFormat = u"application/x-brenix-markup"_s;

    struct KeyCommand
    {
        QKeySequence::StandardKey key;
        int command;
    };
    constexpr KeyCommand keyCommands[] = {
        {QKeySequence::Copy, Decmd::Copy},
        {QKeySequence::Cut, Decmd::Cut},
        {QKeySequence::Paste, Decmd::Paste},
        {QKeySequence::Undo, Decmd::Undo},
        {QKeySequence::Redo, Decmd::Redo},
        {QKeySequence::Bold, Decmd::Bold},
        {QKeySequence::Italic, Decmd::Italic},
        {QKeySequence::Underline, Decmd::Underline},
    };

    QString Call(QStringView function, const QJsonArray &arguments)
    {
        const QByteArray json = QJsonDocument(arguments).toJson(QJsonDocument::Compact);
        return u"brenix.%1(...%2)"_s.arg(function, QString::fromUtf8(json));
    }

} // namespace

WebDesignView::WebDesignView(QWidget *parent)
    : QWebEngineView(parent)
    , m_page(new DesignPage(&m_profile, this))
{
    m_profile.installUrlSchemeHandler(DesignScheme::Name(), &m_scheme);
    setPage(m_page);
    connect(m_page, &DesignPage::Told, this, &WebDesignView::Told);
    // Queued: the engine is still inside the loss of the renderer.
    connect(m_page,
            &QWebEnginePage::renderProcessTerminated,
            this,
            &WebDesignView::ShowAgain,
            Qt::QueuedConnection);
    m_announce.setSingleShot(true);
    m_announce.callOnTimeout(this, &WebDesignView::Announce);
    m_keep.setSingleShot(true);
    m_keep.setInterval(1s);
    m_keep.callOnTimeout(this, &WebDesignView::KeepText);
}

WebDesignView::~WebDesignView()
{
    // before the profile
    delete m_page;
}

bool WebDesignView::LoadDocument(const QString &path)
{
    const FileContent file = ReadAuthorFile(path);
    const DecodedPage page = DecodePage(file.bytes, CharCode);
    m_path = path;
    m_encoding = page.encoding;
    m_lastText.reset();
    m_isRecovered = false;
    m_restarts = 0;
    const QPointer<WebDesignView> self(this);
    if (file.error.isEmpty() && Show(page.text))
        return true;
    if (self) {
        m_openedHost.clear();
        m_shownHost.clear();
        m_page->Open(QUrl(u"about:blank"_s));
    }
    return false;
}

bool WebDesignView::SaveDocument(const QString &path)
{
    const QPointer<WebDesignView> self(this);
    const std::optional<QString> text = DocumentHTML();
    if (!self || !text)
        return false;
    const EncodedPage page = EncodePage(*text, m_encoding, Unencodable::CharacterReference);
    return WritePreviewCopy(path, page.bytes);
}

std::optional<QString> WebDesignView::DocumentHTML()
{
    if (m_shownHost.isEmpty())
        return {};
    const QPointer<WebDesignView> self(this);
    const std::optional<QVariant> answer = m_page->Ask(u"brenix.page()"_s, textLimit);
    if (!self)
        return {};
    const bool isAnswered = answer && answer->toMap().contains(u"html"_s);
    return isAnswered ? TextOfPage(answer->toMap()) : m_lastText;
}

QString WebDesignView::TextOfPage(const QVariantMap &page) const
{
    return page[u"isDirty"_s].toBool() ? m_text.Page(page[u"html"_s].toString())
                                       : m_text.Original();
}

bool WebDesignView::IsDirty()
{
    if (m_shownHost.isEmpty())
        return false;
    const QPointer<WebDesignView> self(this);
    const std::optional<QVariant> answer = m_page->Ask(u"brenix.isDirty()"_s);
    if (!self)
        return false;
    return m_isRecovered
        || (answer && answer->isValid() ? *answer : m_state[u"isDirty"_s]).toBool();
}

void WebDesignView::Refresh()
{
    m_page->Tell(u"brenix.refresh()"_s);
    update();
}

QString WebDesignView::DocumentTitle() const
{
    return m_text.Restore(m_state[u"title"_s].toString());
}

QString WebDesignView::ActiveElement() const
{
    return m_state[u"tag"_s].toString();
}

void WebDesignView::PasteHTML(const QString &markup)
{
    Change(Call(u"insertMarkup", {m_text.Protect(markup)}));
}

QString WebDesignView::ExecCommand(int command, const QString &value)
{
    const QVariantMap values = m_state[u"values"_s].toMap();
    const QString number = QString::number(command);
    const QPointer<WebDesignView> self(this);
    if (values.contains(number))
        return values[number].toString();
    if (command == Decmd::Paste)
        Paste();
    else if (command == Decmd::Copy)
        Copy();
    else if (command != Decmd::Cut)
        Change(Call(u"exec", {command, value}));
    else if (Copy() && self)
        Change(Call(u"exec", {Decmd::Delete}));
    return {};
}

int WebDesignView::QueryStatus(int command)
{
    return m_state[u"status"_s].toMap().value(QString::number(command)).toInt();
}

void WebDesignView::SetShowBorders(bool shown)
{
    m_showsBorders = shown;
    ApplyMarks();
}

void WebDesignView::SetShowDetails(bool shown)
{
    m_showsDetails = shown;
    ApplyMarks();
}

void WebDesignView::SetFocus()
{
    setFocus();
}

// The window that holds the view may have a menu; the engine's own does not belong to an editor.
void WebDesignView::contextMenuEvent(QContextMenuEvent *event)
{
    event->ignore();
}

void WebDesignView::childEvent(QChildEvent *event)
{
    QWebEngineView::childEvent(event);
    if (event->added())
        event->child()->installEventFilter(this);
}

// Files are for the window; what is dragged within the page may be a link to one.
void WebDesignView::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!event->source() && !urls.isEmpty() && urls.constFirst().isLocalFile())
        event->ignore();
    else
        QWebEngineView::dragEnterEvent(event);
}

// The engine would claim these keys before the program's menus see them, and its own clipboard and
// undo are not the ones used here.
bool WebDesignView::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return QWebEngineView::eventFilter(watched, event);
    for (const KeyCommand &row : keyCommands) {
        if (!static_cast<QKeyEvent *>(event)->matches(row.key))
            continue;
        event->setAccepted(!isOverride);
        if (!isOverride)
            ExecCommand(row.command, {});
        return true;
    }
    return QWebEngineView::eventFilter(watched, event);
}

bool WebDesignView::Show(const QString &text)
{
    m_text = DesignText(text);
    m_state.clear();
    m_shownHost.clear();
    m_keep.stop();
    const QUrl url = m_scheme.SetPage(m_path, m_text.Html());
    m_openedHost = url.host();
    const QPointer<WebDesignView> self(this);
    QEventLoop loop;
    connect(m_page, &DesignPage::Told, &loop, [&](const QVariantMap &message) {
        if (message.contains(u"ready"_s) && message[u"page"_s] == url.host())
            loop.quit();
    });
    connect(m_page, &QWebEnginePage::loadFinished, &loop, [&](bool isLoaded) {
        if (!isLoaded && m_page->requestedUrl() == url)
            loop.quit();
    });
    const QPointer<QWidget> focused = window()->focusWidget();
    m_page->Open(url);
    m_page->Wait(loop, LoadLimit(text));
    if (!self)
        return false;
    // The page takes the focus as it comes, or it would not take keys until it is clicked.
    if (focused && window()->focusWidget() != focused)
        focused->setFocus();
    return m_shownHost == url.host();
}

void WebDesignView::ShowAgain()
{
    if (m_shownHost.isEmpty() || ++m_restarts > restartLimit)
        return;
    m_isRecovered = m_isRecovered || m_lastText;
    Show(m_lastText.value_or(m_text.Original()));
}

void WebDesignView::Told(const QVariantMap &message)
{
    if (message[u"page"_s] != m_openedHost)
        return;
    if (message.contains(u"ready"_s)) {
        m_shownHost = m_openedHost;
        ApplyMarks();
    }
    if (message.contains(u"state"_s)) {
        TakeState(message[u"state"_s].toMap());
        m_announce.start(0);
    }
    if (message.contains(u"edited"_s)) {
        m_isEdited = true;
        m_keep.start();
    }
    if (message.contains(u"hovered"_s) && LinkHovered)
        LinkHovered(DesignScheme::AuthorAddress(message[u"hovered"_s].toString()));
}

// An answer may be newer than what was told before it and arrives later.
void WebDesignView::TakeState(const QVariantMap &state)
{
    if (state[u"number"_s].toLongLong() > m_state[u"number"_s].toLongLong())
        m_state = state;
}

// Once for all that was told in a row.
void WebDesignView::Announce()
{
    const QPointer<WebDesignView> self(this);
    const bool isEdited = std::exchange(m_isEdited, false);
    if (isEdited && Edited)
        Edited();
    if (self && DisplayChanged)
        DisplayChanged();
}

void WebDesignView::KeepText()
{
    const auto keep = [self = QPointer(this), host = m_shownHost](const QVariant &answer) {
        const QVariantMap page = answer.toMap();
        if (!self || self->m_shownHost != host || !page.contains(u"html"_s))
            return;
        self->m_lastText.reset();
        if (self->m_isRecovered || page[u"isDirty"_s].toBool())
            self->m_lastText = self->TextOfPage(page);
    };
    m_page->runJavaScript(u"brenix.page()"_s, QWebEngineScript::ApplicationWorld, keep);
}

bool WebDesignView::Change(const QString &expression)
{
    if (m_shownHost.isEmpty())
        return false;
    const QPointer<WebDesignView> self(this);
    const std::optional<QVariant> answer = m_page->Ask(expression);
    if (!self || !answer)
        return false;
    TakeState(answer->toMap()[u"state"_s].toMap());
    return true;
}

bool WebDesignView::Copy()
{
    if (m_shownHost.isEmpty())
        return false;
    const QPointer<WebDesignView> self(this);
    const std::optional<QVariant> answer = m_page->Ask(u"brenix.selected()"_s);
    if (!self || !answer || answer->toMap()[u"html"_s].toString().isEmpty())
        return false;
    const QString html = m_text.Restore(answer->toMap()[u"html"_s].toString());
    auto *data = new QMimeData;
    data->setText(answer->toMap()[u"text"_s].toString());
    data->setHtml(html);
    data->setData(ownFormat, html.toUtf8());
    QApplication::clipboard()->setMimeData(data);
    return true;
}

void WebDesignView::Paste()
{
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (!data)
        return;
    if (data->hasFormat(ownFormat))
        PasteHTML(QString::fromUtf8(data->data(ownFormat)));
    else if (data->hasHtml())
        Change(Call(u"insertForeign", {data->html()}));
    else if (data->hasText())
        Change(Call(u"insertText", {data->text()}));
}

void WebDesignView::ApplyMarks()
{
    if (!m_shownHost.isEmpty())
        m_page->Tell(Call(u"show", {m_showsBorders, m_showsDetails}));
}

} // namespace brenix
