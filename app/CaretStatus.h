#pragma once

#include <QObject>

class QFrame;
class QLabel;
class QWidget;

namespace brenix {

class CodeHighlight;

/// The notes beside the caret that explain what is selected in the source: a colour (`Label1`), a
/// picture (`Image1` in `Picture3`) or an entity (`Letters` in `Picture2`). They are children of
/// the document's window, take neither focus nor mouse, follow the caret when the text scrolls or
/// the views move, and stay within the window, below the caret's line or above it where there is no
/// room.
class CaretStatus : public QObject
{
public:
    /// Both must outlive it.
    CaretStatus(CodeHighlight &source, QWidget &window);

    /// Looks at the selection anew. Names of pictures count from `folder`, which ends in a
    /// separator. The cost does not depend on how much is selected.
    void Follow(const QString &folder);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Build();
    bool LoadPicture(const QString &path);
    void Place();

    CodeHighlight &m_source;
    QWidget &m_window;
    QLabel *m_swatch = nullptr; // Label1
    QFrame *m_pictureFrame = nullptr; // Picture3
    QLabel *m_picture = nullptr; // Image1
    QFrame *m_noteFrame = nullptr; // Picture2
    QLabel *m_note = nullptr; // Letters
    QWidget *m_current = nullptr; // the one of the three that fits the selection
};

} // namespace brenix
