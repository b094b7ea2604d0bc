#pragma once

#include <QWidget>

#include <vector>

class QListView;

namespace brenix {

class HitList;

/// The places in a page where a text was found, as lines "Char: 17" with positions from 0. It is
/// docked in a place of another window until it is dragged away by its title; then it floats. It is
/// deleted when it is closed.
class frmSearchResults : public QWidget
{
    Q_OBJECT

public:
    /// Docked: the caller lays it out in `place`.
    explicit frmSearchResults(QWidget *place);

    void SetHits(std::vector<int> positions);
    bool IsDocked() const { return !isWindow(); }

signals:
    void HitChosen(int position);
    /// It has left its place.
    void Floated();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildTitle();
    void Float(const QPoint &globalPlace);

    HitList *m_hits;
    QListView *m_list; // List1
    QWidget *m_title;
    QPoint m_pressedAt;
};

} // namespace brenix
