#include "app/MLListBox.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qint64 MostUnits = 128 * 1024 * 1024; // two bytes each
    constexpr int ShownLines = 3;
    constexpr int ShownUnits = 160; // of each line
    constexpr int RowMargin = 3; // pixels above and below

    // Without what would upset a row.
    QString ShownLine(QStringView line)
    {
        QString shown = line.left(ShownUnits).toString();
        for (QChar &unit : shown) {
            if (!unit.isPrint() && !unit.isSurrogate())
                unit = u' ';
        }
        return line.size() > ShownUnits ? shown + u'\u2026' : shown;
    }

    QString FirstLines(const QString &text)
    {
        QStringList lines;
        qsizetype start = 0;
        while (start < text.size() && lines.size() < ShownLines) {
            const qsizetype lineEnd = text.indexOf(u'\n', start);
            const qsizetype end = lineEnd < 0 ? text.size() : lineEnd;
            lines += ShownLine(QStringView(text).sliced(start, end - start));
            start = end + 1;
        }
        return lines.join(u'\n') + (start < text.size() ? u"\u2026"_s : QString());
    }

    class MLDelegate : public QStyledItemDelegate
    {
    public:
        using QStyledItemDelegate::QStyledItemDelegate;

        // Counting the lines is enough; laying the text out would hold up long lists.
        QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
        {
            const auto lines = index.data(Qt::DisplayRole).toString().count(u'\n') + 1;
            const int height = int(lines) * option.fontMetrics.lineSpacing();
            return {1, std::max(height, option.decorationSize.height()) + 2 * RowMargin};
        }
    };

} // namespace

MLItems::Element MLItems::NewElement(const QString &text)
{
    return {text, FirstLines(text)};
}

QString MLItems::Item(int index) const
{
    return index >= 0 && index < ListCount() ? m_items[std::size_t(index)].text : QString();
}

void MLItems::AddItem(const QString &text, int index)
{
    const int place = std::clamp(index, 0, ListCount());
    beginInsertRows({}, place, place);
    m_items.insert(m_items.begin() + place, NewElement(text));
    m_units += text.size();
    endInsertRows();
    RemoveSurplus();
}

void MLItems::AddAtTop(const QStringList &texts)
{
    beginResetModel();
    for (const QString &text : texts) {
        m_items.push_front(NewElement(text));
        m_units += text.size();
    }
    endResetModel();
    RemoveSurplus();
}

void MLItems::RemoveItem(int index)
{
    if (index < 0 || index >= ListCount())
        return;
    beginRemoveRows({}, index, index);
    m_units -= Item(index).size();
    m_items.erase(m_items.begin() + index);
    endRemoveRows();
}

void MLItems::Clear()
{
    beginResetModel();
    m_items.clear();
    m_units = 0;
    endResetModel();
}

void MLItems::RemoveSurplus()
{
    int kept = ListCount();
    qint64 units = m_units;
    while (kept > 1 && (kept > MostItems || units > MostUnits))
        units -= m_items[std::size_t(--kept)].text.size();
    if (kept == ListCount())
        return;
    beginRemoveRows({}, kept, ListCount() - 1);
    m_items.resize(std::size_t(kept));
    m_units = units;
    endRemoveRows();
}

int MLItems::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ListCount();
}

QVariant MLItems::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return m_items[std::size_t(index.row())].shown;
    return role == Qt::DecorationRole ? m_icon : QVariant();
}

MLListBox::MLListBox(MLItems &items, QWidget *parent)
    : QListView(parent)
{
    setModel(&items);
    setItemDelegate(new MLDelegate(this));
    setEditTriggers(NoEditTriggers);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({side, side});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
}

// Else the key would delete the selected text of the page.
bool MLListBox::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Delete)) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

void MLListBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete))
        emit RemoveAsked();
    else
        QListView::keyPressEvent(event);
}

void MLListBox::initViewItemOption(QStyleOptionViewItem *option) const
{
    QListView::initViewItemOption(option);
    option->decorationAlignment = Qt::AlignHCenter | Qt::AlignTop;
    option->displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace brenix
