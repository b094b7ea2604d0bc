#include "app/ClipboardRecord.h"

#include <QApplication>
#include <QClipboard>

namespace brenix {

ClipboardRecord::ClipboardRecord(QObject *parent)
    : QObject(parent)
{
    m_look.setSingleShot(true);
    connect(&m_look, &QTimer::timeout, this, &ClipboardRecord::Look);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        m_look.start(m_isOwnCopy ? 2 * QApplication::doubleClickInterval() : 0);
    });
}

void ClipboardRecord::Look()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (!text.isEmpty() && text != m_elements.Item(0))
        m_elements.AddItem(text, 0);
}

void ClipboardRecord::CopyBack(int index)
{
    const QString text = m_elements.Item(index);
    if (text.isEmpty())
        return;
    m_isOwnCopy = true;
    QGuiApplication::clipboard()->setText(text);
    m_isOwnCopy = false;
}

} // namespace brenix
