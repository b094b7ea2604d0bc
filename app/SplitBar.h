#pragma once

#include <QWidget>

#include <functional>

namespace brenix {

/// A bar between two views that is dragged with the left button.
class SplitBar : public QWidget
{
public:
    SplitBar(Qt::Orientation orientation, QWidget *parent);

    static constexpr int Thickness = 4; // 60 twips

    /// Called with the place of the bar's edge in its parent while it is dragged, and once more
    /// when it is let go.
    std::function<void(int position, bool finished)> Dragged;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int PositionOf(const QMouseEvent &event) const;

    Qt::Orientation m_orientation;
    int m_grabbedAt = 0; // within the bar
    bool m_moved = false;
};

} // namespace brenix
