#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <QListView>

#include <deque>

namespace brenix {

/// The elements of a multi-line list box: texts of any size, of which the list shows the first
/// lines. There is room for 10000 elements and 256 MB; what is more goes from the end, but the
/// first element always stays. Indexes count from 0.
class MLItems : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int ListCount() const { return int(m_items.size()); }
    /// The whole text; empty for an index that does not exist.
    QString Item(int index) const;
    /// An index outside the list is brought to its nearest end.
    void AddItem(const QString &text, int index);
    /// Adds texts as if one after the other at index 0, in one step.
    void AddAtTop(const QStringList &texts);
    void RemoveItem(int index);
    void Clear();
    /// The picture in front of each element.
    void SetIcon(const QIcon &icon) { m_icon = icon; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    static constexpr int MostItems = 10'000;

private:
    struct Element
    {
        QString text;
        QString shown;
    };
    static Element NewElement(const QString &text);
    void RemoveSurplus();

    std::deque<Element> m_items;
    qint64 m_units = 0; // of all texts
    QIcon m_icon;
};

/// A list whose rows are as high as their text has lines.
class MLListBox : public QListView
{
    Q_OBJECT

public:
    explicit MLListBox(MLItems &items, QWidget *parent = nullptr);

    /// The current row, -1 when there is none.
    int ListIndex() const { return currentIndex().row(); }

signals:
    /// The Del key was pressed on an element.
    void RemoveAsked();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;
};

} // namespace brenix
