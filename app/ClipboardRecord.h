#pragma once

#include "app/MLListBox.h"

#include <QTimer>

namespace brenix {

/// Keeps every text that is copied, here or in another program, the newest first. A text that is
/// the newest already is not kept again; a picture is no text.
class ClipboardRecord : public QObject
{
public:
    explicit ClipboardRecord(QObject *parent = nullptr);

    MLItems &Elements() { return m_elements; }
    /// Takes in what stands on the clipboard now.
    void Look();
    /// Puts an element on the clipboard; an index that does not exist leaves the clipboard as it
    /// is. As a text that was copied it comes to the top of the list as well, but only after the
    /// time of a double click, which would meet another row otherwise.
    void CopyBack(int index);

private:
    MLItems m_elements;
    QTimer m_look;
    bool m_isOwnCopy = false;
};

} // namespace brenix
