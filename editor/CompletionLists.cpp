#include "editor/CompletionLists.h"

#include "editor/CodeHighlight.h"
#include "editor/Completion.h"
#include "editor/TypingSteps.h"

#include <QListWidget>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Below = 20; // of the caret's upper end, in pixels
    constexpr int MostRows = 8;
    constexpr int LeastWidth = 90;
    constexpr int MostWidth = 320;
    constexpr int TextMargin = 8; // beside a row's text
    constexpr int RowSpacing = 1;

    struct ListRow
    {
        const char16_t *name;
        const char16_t *accessibleName;
        int right; // of the caret, in pixels
        const char16_t *wordEnds; // characters that Backspace hides the list at
    };
    constexpr ListRow ListRows[CompletionLists::KindCount] = {
        {u"List1", u"Attributes", 27, u" <>\n"},
        {u"List2", u"Tags", 27, u" <>\n"},
        {u"List3", u"End tag", 26, u" <>\n"},
        {u"List4", u"Macros", 31, u""},
        {u"List5", u"Values", 27, u" <>=\"\n"},
    };

    // Without the focus a list would show its selection in grey.
    QPalette PaletteOfFocus(QPalette palette)
    {
        for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
            palette.setBrush(QPalette::Inactive, role, palette.brush(QPalette::Active, role));
        return palette;
    }

} // namespace

CompletionLists::CompletionLists(CodeHighlight &source, QWidget &window)
    : QObject(&window)
    , m_source(source)
    , m_window(window)
{
}

// Made when it is first needed: five lists that nobody may see would hold up each new window.
QListWidget &CompletionLists::List(Kind kind)
{
    if (!m_lists[kind])
        m_lists[kind] = Create(kind, m_window);
    return *m_lists[kind];
}

QListWidget *CompletionLists::Create(Kind kind, QWidget &window)
{
    auto *list = new QListWidget(&window);
    list->setObjectName(QString::fromUtf16(ListRows[kind].name));
    list->setAccessibleName(QString::fromUtf16(ListRows[kind].accessibleName));
    list->setFocusPolicy(Qt::NoFocus);
    list->setFocusProxy(&m_source); // or a click would give it to the window around them
    list->setFrameShape(QFrame::Box);
    list->setPalette(PaletteOfFocus(list->palette()));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setUniformItemSizes(true);
    list->setSpacing(RowSpacing);
    list->setTextElideMode(Qt::ElideRight);
    list->hide();
    connect(list, &QListWidget::itemClicked, this, &CompletionLists::Clicked);
    return list;
}

void CompletionLists::Fill(Kind kind, const QStringList &rows)
{
    m_rows[kind] = rows;
    List(kind).clear();
    List(kind).addItems(rows);
}

bool CompletionLists::IsEmpty(Kind kind) const
{
    return m_rows[kind].isEmpty();
}

bool CompletionLists::IsShown(Kind kind) const
{
    return m_lists[kind] && !m_lists[kind]->isHidden();
}

void CompletionLists::Show(Kind kind, int selected)
{
    QListWidget &list = List(kind);
    m_typed[kind].clear();
    list.setCurrentRow(selected);
    if (selected < 0)
        list.scrollToTop();
    Place(kind);
    list.show();
    list.raise();
}

void CompletionLists::Hide(Kind kind)
{
    m_typed[kind].clear();
    if (m_lists[kind])
        m_lists[kind]->hide();
}

void CompletionLists::HideAll()
{
    for (int kind = 0; kind < KindCount; ++kind)
        Hide(Kind(kind));
}

QString CompletionLists::Selected(Kind kind) const
{
    return m_lists[kind] ? m_rows[kind].value(m_lists[kind]->currentRow()) : QString();
}

void CompletionLists::AddTyped(QChar character)
{
    for (const Kind kind : {Attributes, Tags, EndTag, Values}) {
        if (IsShown(kind))
            SetTyped(kind, m_typed[kind] + character);
    }
}

void CompletionLists::SetTyped(Kind kind, const QString &typed)
{
    m_typed[kind] = typed;
    QListWidget &list = *m_lists[kind];
    list.setCurrentRow(FindRow(m_rows[kind], typed));
    if (list.currentItem())
        list.scrollToItem(list.currentItem(), QListWidget::PositionAtTop);
    if (typed.isEmpty() && kind != EndTag)
        Hide(kind);
}

QString CompletionLists::CharacterBeforeCaret() const
{
    const QString before = TextBefore(m_source, m_source.SelStart(), 2);
    const bool pair
        = before.size() == 2 && before.front().isHighSurrogate() && before.back().isLowSurrogate();
    return pair ? before : before.right(1);
}

bool CompletionLists::TakeBack()
{
    constexpr Kind Order[] = {Tags, Attributes, Values, EndTag};
    const auto *shown = std::ranges::find_if(Order, [this](Kind kind) { return IsShown(kind); });
    if (shown == std::end(Order))
        return false;
    const Kind kind = *shown;
    const QString character = CharacterBeforeCaret();
    if (character.isEmpty() || m_source.SelLength() > 0
        || QStringView(ListRows[kind].wordEnds).contains(character)) {
        Hide(kind);
        return false;
    }
    // Of a tag's name the list forgets two characters for one.
    const QString typed
        = m_typed[kind].chopped(std::min(m_typed[kind].size(), qsizetype(kind == Tags ? 2 : 1)));
    SetTyped(kind, typed);
    AcceptValue(m_source, character, {});
    return true;
}

bool CompletionLists::Move(int by)
{
    constexpr Kind Order[] = {Attributes, Values, Tags, EndTag, Macros};
    const auto *shown = std::ranges::find_if(Order, [this](Kind kind) { return IsShown(kind); });
    if (shown == std::end(Order))
        return false;
    QListWidget &list = *m_lists[*shown];
    const int row = list.currentRow() + by;
    if (row >= 0 && row < list.count())
        list.setCurrentRow(row);
    return true;
}

QSize CompletionLists::SizeFor(const QListWidget &list) const
{
    const int frame = 2 * list.frameWidth();
    const int bar = list.count() > MostRows ? list.verticalScrollBar()->sizeHint().width() : 0;
    const int width = list.sizeHintForColumn(0) + TextMargin + bar + frame;
    const int row = list.sizeHintForRow(0) + 2 * RowSpacing;
    const int height = std::clamp(list.count(), 1, MostRows) * row + frame;
    return {std::clamp(width, LeastWidth, MostWidth), height};
}

void CompletionLists::Place(Kind kind)
{
    QListWidget &list = *m_lists[kind];
    list.ensurePolished();
    const QSize size = SizeFor(list);
    const QRect caret = m_source.cursorRect();
    const QPoint place = m_source.viewport()->mapTo(&m_window, caret.topLeft());
    const int room = m_window.height() - 2 * m_barHeight;
    int top = place.y() + std::max(Below, caret.height() + 2);
    if (top + size.height() > room)
        top = place.y() - size.height();
    const int left = std::min(place.x() + ListRows[kind].right, m_window.width() - size.width());
    list.setGeometry(QRect(QPoint(std::max(0, left), std::max(0, top)), size));
}

} // namespace brenix
