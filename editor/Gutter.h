#pragma once

#include <QWidget>

namespace brenix {

class CodeHighlight;

/// The line numbers at the left edge of the source, and the rule beside them: 50 numbers from the
/// first visible line on, however many lines there are.
class Gutter : public QWidget
{
public:
    explicit Gutter(CodeHighlight &editor);

    /// Wide enough for the highest number; never narrower than its place in the window.
    int WidthFor(int lineCount) const;
    /// The numbers, one a line.
    QString Label() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CodeHighlight &m_editor;
};

} // namespace brenix
