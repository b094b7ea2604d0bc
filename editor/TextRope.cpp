#include "editor/TextRope.h"

#include "editor/LineEnds.h"

#include <QVarLengthArray>

#include <algorithm>

namespace brenix {

namespace {

    // Leaves of this size keep a snapshot near 2 kB: one leaf and the path to it.
    constexpr int MaxLeaf = 512;

    struct Counts
    {
        int units = 0;
        int hardEnds = 0;
        int softBreaks = 0;

        int TextUnits() const { return units + hardEnds - softBreaks; }
        Counts &operator+=(const Counts &other)
        {
            units += other.units;
            hardEnds += other.hardEnds;
            softBreaks += other.softBreaks;
            return *this;
        }
    };

    Counts CountOf(QStringView text)
    {
        Counts counts;
        counts.units = int(text.size());
        for (const QChar unit : text) {
            counts.hardEnds += IsHardEnd(unit.unicode());
            counts.softBreaks += unit.unicode() == LineEnd::Soft;
        }
        return counts;
    }

} // namespace

struct TextRope::Node
{
    Counts counts;
    int height = 0; // 0 is a leaf
    QString text; // of a leaf
    NodePointer left;
    NodePointer right;
};

namespace {

    using Node = TextRope::Node;
    using NodePointer = TextRope::NodePointer;

    int HeightOf(const NodePointer &node)
    {
        return node ? node->height : -1;
    }

    NodePointer MakeLeaf(QStringView text)
    {
        if (text.isEmpty())
            return nullptr;
        auto node = std::make_shared<Node>();
        node->counts = CountOf(text);
        node->text = text.toString();
        return node;
    }

    NodePointer MakeInner(NodePointer left, NodePointer right)
    {
        auto node = std::make_shared<Node>();
        node->counts = left->counts;
        node->counts += right->counts;
        node->height = 1 + std::max(left->height, right->height);
        node->left = std::move(left);
        node->right = std::move(right);
        return node;
    }

    // The two sides differ in height by at most two.
    NodePointer Balanced(const NodePointer &left, const NodePointer &right)
    {
        if (left->height > right->height + 1) {
            if (left->left->height >= left->right->height)
                return MakeInner(left->left, MakeInner(left->right, right));
            return MakeInner(MakeInner(left->left, left->right->left),
                             MakeInner(left->right->right, right));
        }
        if (right->height > left->height + 1) {
            if (right->right->height >= right->left->height)
                return MakeInner(MakeInner(left, right->left), right->right);
            return MakeInner(MakeInner(left, right->left->left),
                             MakeInner(right->left->right, right->right));
        }
        return MakeInner(left, right);
    }

    NodePointer Join(const NodePointer &left, const NodePointer &right)
    {
        if (!left || !right)
            return left ? left : right;
        if (left->height == 0 && right->height == 0
            && left->counts.units + right->counts.units <= MaxLeaf)
            return MakeLeaf(QString(left->text + right->text));
        if (HeightOf(left) > HeightOf(right) + 1)
            return Balanced(left->left, Join(left->right, right));
        if (HeightOf(right) > HeightOf(left) + 1)
            return Balanced(Join(left, right->left), right->right);
        return MakeInner(left, right);
    }

    std::pair<NodePointer, NodePointer> Split(const NodePointer &node, int position)
    {
        if (!node || position <= 0)
            return {nullptr, node};
        if (position >= node->counts.units)
            return {node, nullptr};
        if (node->height == 0)
            return {MakeLeaf(QStringView(node->text).left(position)),
                    MakeLeaf(QStringView(node->text).mid(position))};
        const int leftUnits = node->left->counts.units;
        if (position < leftUnits) {
            auto [first, second] = Split(node->left, position);
            return {first, Join(second, node->right)};
        }
        auto [first, second] = Split(node->right, position - leftUnits);
        return {Join(node->left, first), second};
    }

    NodePointer Build(QStringView text)
    {
        if (text.size() <= MaxLeaf)
            return MakeLeaf(text);
        const qsizetype leaves = (text.size() + MaxLeaf - 1) / MaxLeaf;
        const qsizetype middle = text.size() * (leaves / 2) / leaves;
        return MakeInner(Build(text.left(middle)), Build(text.mid(middle)));
    }

    // What stands before the first place at which `stop` holds for the counts so far plus those of
    // the next unit.
    template <typename Stop> Counts CountUntil(const NodePointer &root, Stop stop)
    {
        Counts before;
        const Node *node = root.get();
        while (node && node->height > 0) {
            Counts withLeft = before;
            withLeft += node->left->counts;
            if (stop(withLeft)) {
                node = node->left.get();
            } else {
                before = withLeft;
                node = node->right.get();
            }
        }
        if (!node)
            return before;
        for (const QChar unit : node->text) {
            Counts next = before;
            next += CountOf(QStringView(&unit, 1));
            if (stop(next))
                break;
            before = next;
        }
        return before;
    }

    Counts CountBefore(const NodePointer &root, int position)
    {
        return CountUntil(root,
                          [position](const Counts &counts) { return counts.units > position; });
    }

    // Walks the leaves from one end; a whole subtree can be passed over at once.
    class PieceWalker
    {
    public:
        PieceWalker(const NodePointer &root, bool fromEnd)
            : m_fromEnd(fromEnd)
        {
            if (root)
                m_path.append(root.get());
        }
        bool AtEnd() const { return m_path.isEmpty(); }
        // The subtree that starts exactly here; null inside a leaf.
        const Node *Whole() const { return m_used == 0 ? m_path.last() : nullptr; }
        void SkipWhole() { m_path.removeLast(); }
        void Descend()
        {
            const Node *node = m_path.last();
            m_path.removeLast();
            m_path.append(m_fromEnd ? node->left.get() : node->right.get());
            m_path.append(m_fromEnd ? node->right.get() : node->left.get());
        }
        QStringView Rest() const
        {
            const QStringView text(m_path.last()->text);
            return m_fromEnd ? text.chopped(m_used) : text.mid(m_used);
        }
        void Use(int units)
        {
            m_used += units;
            if (m_used == m_path.last()->counts.units) {
                m_path.removeLast();
                m_used = 0;
            }
        }

    private:
        QVarLengthArray<const Node *, 64> m_path;
        int m_used = 0;
        bool m_fromEnd;
    };

    int EqualUnits(QStringView a, QStringView b, bool fromEnd)
    {
        const qsizetype length = std::min(a.size(), b.size());
        if (fromEnd) {
            const auto [left, right] = std::mismatch(a.rbegin(), a.rbegin() + length, b.rbegin());
            return int(left - a.rbegin());
        }
        const auto [left, right] = std::mismatch(a.begin(), a.begin() + length, b.begin());
        return int(left - a.begin());
    }

    int Common(const NodePointer &a, const NodePointer &b, bool fromEnd)
    {
        PieceWalker left(a, fromEnd);
        PieceWalker right(b, fromEnd);
        int common = 0;
        while (!left.AtEnd() && !right.AtEnd()) {
            const Node *leftWhole = left.Whole();
            const Node *rightWhole = right.Whole();
            if (leftWhole && leftWhole == rightWhole) {
                common += leftWhole->counts.units;
                left.SkipWhole();
                right.SkipWhole();
                continue;
            }
            // Open the higher of the two, so that shared subtrees come to stand opposite each
            // other.
            const int leftHeight = leftWhole ? leftWhole->height : 0;
            const int rightHeight = rightWhole ? rightWhole->height : 0;
            if (leftHeight > 0 && leftHeight >= rightHeight) {
                left.Descend();
                continue;
            }
            if (rightHeight > 0) {
                right.Descend();
                continue;
            }
            const int length = int(std::min(left.Rest().size(), right.Rest().size()));
            const int equal = EqualUnits(left.Rest(), right.Rest(), fromEnd);
            common += equal;
            if (equal < length)
                break;
            left.Use(equal);
            right.Use(equal);
        }
        return common;
    }

    void Visit(const Node &node, const std::function<void(QStringView)> &visit)
    {
        if (node.height == 0) {
            visit(node.text);
            return;
        }
        Visit(*node.left, visit);
        Visit(*node.right, visit);
    }

    void Collect(const Node &node, int position, int length, QString &result)
    {
        if (node.height == 0) {
            result += QStringView(node.text).mid(position, length);
            return;
        }
        const int leftUnits = node.left->counts.units;
        if (position < leftUnits)
            Collect(*node.left, position, std::min(length, leftUnits - position), result);
        if (position + length > leftUnits) {
            const int start = std::max(0, position - leftUnits);
            Collect(*node.right, start, position + length - leftUnits - start, result);
        }
    }

} // namespace

TextRope::TextRope(QStringView text)
    : m_root(Build(text))
{
}

int TextRope::Length() const
{
    return m_root ? m_root->counts.units : 0;
}

char16_t TextRope::At(int position) const
{
    const QString unit = position < 0 ? QString() : Mid(position, 1);
    return unit.isEmpty() ? u'\0' : unit.at(0).unicode();
}

QString TextRope::Mid(int position, int length) const
{
    position = std::clamp(position, 0, Length());
    length = std::clamp(length, 0, Length() - position);
    QString result;
    if (length > 0) {
        result.reserve(length);
        Collect(*m_root, position, length, result);
    }
    return result;
}

TextRope TextRope::Replaced(int position, int length, QStringView replacement) const
{
    position = std::clamp(position, 0, Length());
    length = std::clamp(length, 0, Length() - position);
    const auto [head, rest] = Split(m_root, position);
    const NodePointer tail = Split(rest, length).second;
    return TextRope(Join(Join(head, Build(replacement)), tail));
}

void TextRope::ForEachPiece(const std::function<void(QStringView)> &visit) const
{
    if (m_root)
        Visit(*m_root, visit);
}

int TextRope::TextLength() const
{
    return m_root ? m_root->counts.TextUnits() : 0;
}

int TextRope::ToTextPosition(int position) const
{
    return CountBefore(m_root, position).TextUnits();
}

int TextRope::FromTextPosition(int textPosition) const
{
    return CountUntil(
               m_root,
               [textPosition](const Counts &counts) { return counts.TextUnits() > textPosition; })
        .units;
}

int TextRope::LineCount() const
{
    return 1 + (m_root ? m_root->counts.hardEnds : 0);
}

int TextRope::LineOf(int position) const
{
    return CountBefore(m_root, position).hardEnds;
}

int TextRope::LineStart(int line) const
{
    if (line < 0 || line >= LineCount())
        return -1;
    return line == 0 ? 0 : LineFinish(line - 1) + 1;
}

int TextRope::LineFinish(int line) const
{
    return CountUntil(m_root, [line](const Counts &counts) { return counts.hardEnds > line; })
        .units;
}

int TextRope::CommonPrefix(const TextRope &a, const TextRope &b)
{
    return Common(a.m_root, b.m_root, false);
}

int TextRope::CommonSuffix(const TextRope &a, const TextRope &b)
{
    return Common(a.m_root, b.m_root, true);
}

bool operator==(const TextRope &a, const TextRope &b)
{
    return a.Length() == b.Length() && TextRope::CommonPrefix(a, b) == a.Length();
}

} // namespace brenix
