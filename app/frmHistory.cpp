#include "app/frmHistory.h"

#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Change
    {
        const char16_t *version;
        const char16_t *subject;
        const char16_t *text;
    };

    // clang-format off
    constexpr Change Changes[] = {
        {u"2.0.0", u"Views",     u"The source and the page side by side or above one another, the source alone, or the page alone."},
        {u"2.0.0", u"Views",     u"The page follows what you type; a page that hangs or crashes never takes your text with it."},
        {u"2.0.0", u"Views",     u"A design view, in which the page is edited as it looks; doctype, comments and scripts stay."},
        {u"2.0.0", u"Source",    u"Tags, comments, tables, links and pictures in colors of your choice; scripts and styles as well."},
        {u"2.0.0", u"Source",    u"Pages of several megabytes, and pages of one single line, are typed in as quickly as small ones."},
        {u"2.0.0", u"Source",    u"Undo and Redo go back through snapshots of the whole page."},
        {u"2.0.0", u"Typing",    u"Tags, attributes and values are offered while you type, for sixteen versions of HTML and browsers."},
        {u"2.0.0", u"Typing",    u"Tags are closed for you, and a note beside the caret shows a color, a picture or a character."},
        {u"2.0.0", u"Files",     u"What you did not change stays as it is, byte for byte: line ends, encoding and byte order mark."},
        {u"2.0.0", u"Files",     u"All common encodings. A letter that the encoding of a page lacks is never replaced unasked."},
        {u"2.0.0", u"Files",     u"At any moment, even in a power cut, the old page or the new one is whole on the disk."},
        {u"2.0.0", u"Files",     u"Templates, standard pages, recent files, and a bar with all open documents."},
        {u"2.0.0", u"Toolbox",   u"Nine panes: new pages, files of the site, tags, characters, all that you copied, search and more."},
        {u"2.0.0", u"Checking",  u"HTML Tidy with presets of your own, and two built-in checkers; a click leads to the place."},
        {u"2.0.0", u"Checking",  u"Broken links, the time a page takes to load, and an overview of what stands on it."},
        {u"2.0.0", u"Tools",     u"Source that is compressed, formatted or stripped; search and replace over a whole folder; macros."},
        {u"2.0.0", u"Tools",     u"Your page in up to four other browsers, on paper, or from your own web server."},
        {u"2.0.0", u"Tools",     u"A gallery of backgrounds, and a reference of data objects and script functions."},
        {u"2.0.0", u"Tools",     u"brenix-cli, the work of the editor as filters for the command line."},
        {u"2.0.0", u"Help",      u"A topic for each tag, with F1 for the one at the caret."},
        {u"2.0.0", u"Yours",     u"Options for all of it, skins for the toolbars, and menus in your language through language.lng."},
    };
    // clang-format on

    QString ChangesAsHtml()
    {
        QString html;
        QString version;
        QString subject;
        for (const Change &change : Changes) {
            if (version != change.version) {
                version = QString::fromUtf16(change.version);
                subject.clear();
                html += u"<h2>Version %1</h2>"_s.arg(version);
            }
            if (subject != change.subject) {
                subject = QString::fromUtf16(change.subject);
                html += u"<h3>%1</h3>"_s.arg(subject);
            }
            html += u"<ul><li>%1</li></ul>"_s.arg(QString::fromUtf16(change.text).toHtmlEscaped());
        }
        return html;
    }

} // namespace

frmHistory::frmHistory(QWidget *parent)
    : FormDialog(u"frmHistory", u"History"_s, parent)
{
    auto *changes = new QTextBrowser(this);
    changes->setObjectName(u"Text1"_s);
    changes->setAccessibleName(u"Changes"_s);
    changes->document()->setDefaultStyleSheet(
        u"h2 { margin: 0 0 4px 0 } h3 { margin: 10px 0 2px 0 } ul { margin: 0 0 3px 0; "
        "-qt-list-indent: 0 } li { margin-left: 14px }"_s);
    changes->setHtml(ChangesAsHtml());
    changes->setMinimumSize(fontMetrics().averageCharWidth() * 72,
                            fontMetrics().lineSpacing() * 22);
    Rows().Add(changes, 1);
    AddButtons({.ok = u"cmdOK", .cancel = nullptr});
}

} // namespace brenix
