#include "app/DroppedFiles.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "support/SourceView.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Whoever drags would remove a file that is said to have been moved.
    void AcceptCopy(QDropEvent &event)
    {
        if (event.possibleActions().testFlag(Qt::CopyAction))
            event.setDropAction(Qt::CopyAction);
        event.accept();
    }

} // namespace

void frmMain::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::any_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); }))
        AcceptCopy(*event);
}

void frmMain::dropEvent(QDropEvent *event)
{
    AcceptCopy(*event);
    QStringList names;
    for (const QUrl &url : event->mimeData()->urls())
        names.append(url.toLocalFile());
    // Messages and choosers wait until the other program has its hands free.
    QMetaObject::invokeMethod(
        this, [this, names] { OpenDropped(names); }, Qt::QueuedConnection);
}

void frmMain::OpenDropped(const QStringList &names)
{
    for (const QString &path : DroppedPaths(names)) {
        if (path.endsWith(QDir::separator())) {
            OpenFrom(path);
            continue;
        }
        frmDocument *document = LoadNewDoc();
        document->OpenFile(path);
        document->rtfText().AddUndo();
        document->Modyfied = u"0"_s;
    }
}

} // namespace brenix
