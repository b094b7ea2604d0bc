#pragma once

#include <QWidget>

#include <functional>

class QLabel;

namespace brenix {

class GridCells;

/// The grid picker: a pop-up in which the size of a table is pointed out. A click, or Enter after
/// the arrow keys, hands the size on; the right button and Esc only close it.
class frmTable : public QWidget
{
    Q_OBJECT

public:
    explicit frmTable(QWidget *parent = nullptr);

signals:
    void Chosen(int rows, int columns);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void ShowNumbers(int rows, int columns);
    void Finish();

    GridCells *m_cells;
    QLabel *m_rows;
    QLabel *m_columns;
};

} // namespace brenix
