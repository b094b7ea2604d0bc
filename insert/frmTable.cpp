#include "insert/frmTable.h"

#include "insert/TableGrid.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brenix {

/// The cells, of which those up to the pointed one are marked. Pointing past the edge adds cells.
class GridCells : public QWidget
{
public:
    explicit GridCells(QWidget *parent)
        : QWidget(parent)
        , m_cell(fontMetrics().height() + 4)
    {
        setMouseTracking(true);
    }

    int Rows() const { return m_rows; }
    int Columns() const { return m_columns; }

    void Point(int rows, int columns)
    {
        m_rows = std::clamp(rows, 1, GridLimit);
        m_columns = std::clamp(columns, 1, GridLimit);
        m_shownRows = std::max(m_shownRows, m_rows);
        m_shownColumns = std::max(m_shownColumns, m_columns);
        updateGeometry();
        update();
        window()->adjustSize();
        if (Changed)
            Changed(m_rows, m_columns);
    }

    QSize sizeHint() const override
    {
        return {m_shownColumns * m_cell + 1, m_shownRows * m_cell + 1};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

    std::function<void(int rows, int columns)> Changed;
    std::function<void(bool chosen)> Released;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        for (int row = 0; row < m_shownRows; ++row) {
            for (int column = 0; column < m_shownColumns; ++column) {
                const bool isMarked = row < m_rows && column < m_columns;
                painter.setBrush(palette().brush(isMarked ? QPalette::Highlight : QPalette::Base));
                painter.drawRect(column * m_cell, row * m_cell, m_cell, m_cell);
            }
        }
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        const QPointF place = event->position();
        Point(int(std::floor(place.y() / m_cell)) + 1, int(std::floor(place.x() / m_cell)) + 1);
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        const bool isInside = event->position().x() >= 0 && event->position().y() >= 0;
        Released(isInside && event->button() != Qt::RightButton);
    }

private:
    int m_cell;
    int m_shownRows = 4;
    int m_shownColumns = 4;
    int m_rows = 0;
    int m_columns = 0;
};

frmTable::frmTable(QWidget *parent)
    : QWidget(parent, Qt::Popup)
    , m_cells(new GridCells(this))
    , m_rows(new QLabel(u"4"_s, this))
    , m_columns(new QLabel(u"3"_s, this))
{
    setObjectName(u"frmTable"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    m_cells->setObjectName(u"Picture1"_s);
    m_cells->setAccessibleName(u"Size of the table"_s);
    m_rows->setObjectName(u"Label2"_s);
    m_columns->setObjectName(u"Label1"_s);
    auto *numbers = new QHBoxLayout;
    numbers->addStretch();
    numbers->addWidget(m_rows);
    numbers->addWidget(new QLabel(u"\u00D7"_s, this));
    numbers->addWidget(m_columns);
    numbers->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_cells);
    layout->addLayout(numbers);

    m_cells->Changed = [this](int rows, int columns) { ShowNumbers(rows, columns); };
    m_cells->Released = [this](bool chosen) {
        if (chosen)
            Finish();
        else
            close();
    };
}

void frmTable::ShowNumbers(int rows, int columns)
{
    m_rows->setNum(rows);
    m_columns->setNum(columns);
}

void frmTable::Finish()
{
    const int rows = m_cells->Rows();
    const int columns = m_cells->Columns();
    close();
    if (rows > 0)
        emit Chosen(rows, columns);
}

void frmTable::keyPressEvent(QKeyEvent *event)
{
    const int rows = m_cells->Rows();
    const int columns = m_cells->Columns();
    switch (event->key()) {
    case Qt::Key_Up:
        return m_cells->Point(rows - 1, columns);
    case Qt::Key_Down:
        return m_cells->Point(rows + 1, columns);
    case Qt::Key_Left:
        return m_cells->Point(rows, columns - 1);
    case Qt::Key_Right:
        return m_cells->Point(rows, columns + 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Finish();
    default:
        QWidget::keyPressEvent(event); // Esc closes a pop-up
    }
}

} // namespace brenix
