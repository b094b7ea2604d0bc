#include "checks/frmSearchResults.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int RowsAtOnce = 20'000;
    constexpr QSize FloatingSize(180, 320);
    constexpr QPoint GrabbedAt(40, -8); // where the pointer holds a window that begins to float

} // namespace

/// Millions of hits are no rarity, so the view gets them piece by piece as it is scrolled.
class HitList : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void SetPositions(std::vector<int> positions)
    {
        beginResetModel();
        m_positions = std::move(positions);
        m_shown = std::min(Count(), RowsAtOnce);
        endResetModel();
    }
    int PositionAt(const QModelIndex &index) const { return m_positions[std::size_t(index.row())]; }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_shown;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        return u"Char: %1"_s.arg(PositionAt(index));
    }
    bool canFetchMore(const QModelIndex &parent) const override
    {
        return !parent.isValid() && m_shown < Count();
    }
    void fetchMore(const QModelIndex &) override
    {
        const int more = std::min(Count() - m_shown, RowsAtOnce);
        beginInsertRows({}, m_shown, m_shown + more - 1);
        m_shown += more;
        endInsertRows();
    }

private:
    int Count() const { return int(m_positions.size()); }

    std::vector<int> m_positions;
    int m_shown = 0;
};

frmSearchResults::frmSearchResults(QWidget *place)
    : QWidget(place)
    , m_hits(new HitList(this))
    , m_list(new QListView(this))
    , m_title(new QWidget(this))
{
    setObjectName(u"frmSearchResults"_s);
    setWindowTitle(u"Search Results"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    m_list->setObjectName(u"List1"_s);
    m_list->setAccessibleName(u"Search Results"_s);
    m_list->setModel(m_hits);
    m_list->setUniformItemSizes(true);
    const auto choose = [this](const QModelIndex &hit) { emit HitChosen(m_hits->PositionAt(hit)); };
    connect(m_list, &QListView::clicked, this, choose);
    connect(m_list, &QListView::activated, this, choose);
    BuildTitle();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_title);
    layout->addWidget(m_list, 1);
    setFocusProxy(m_list);
}

void frmSearchResults::BuildTitle()
{
    const QString tip = u"Drag to make this list float"_s;
    auto *grip = new QLabel(u"\u2847"_s, m_title);
    grip->setObjectName(u"Image1"_s);
    auto *caption = new QLabel(windowTitle(), m_title);
    caption->setObjectName(u"Label1"_s);
    for (QLabel *handle : {grip, caption}) {
        handle->setToolTip(tip);
        handle->setCursor(Qt::SizeAllCursor);
        handle->installEventFilter(this);
    }
    auto *close = new QToolButton(m_title);
    close->setObjectName(u"Image2"_s);
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(u"Close"_s);
    close->setAccessibleName(u"Close"_s);
    connect(close, &QToolButton::clicked, this, &QWidget::close);
    auto *layout = new QHBoxLayout(m_title);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(grip);
    layout->addWidget(caption, 1);
    layout->addWidget(close);
}

void frmSearchResults::SetHits(std::vector<int> positions)
{
    m_hits->SetPositions(std::move(positions));
}

bool frmSearchResults::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint place = mouse->globalPosition().toPoint();
        if (event->type() == QEvent::MouseButtonPress)
            m_pressedAt = place;
        else if (mouse->buttons().testFlag(Qt::LeftButton) && IsDocked()
                 && (place - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
            Float(place);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// A window of its own has the title of the system, by which the drag goes on.
void frmSearchResults::Float(const QPoint &globalPlace)
{
    m_title->hide();
    setParent(window(), Qt::Tool);
    resize(FloatingSize);
    move(globalPlace - GrabbedAt);
    show();
    windowHandle()->startSystemMove();
    emit Floated();
}

} // namespace brenix
