#pragma once

#include <QList>

#include <functional>
#include <utility>

namespace brenix {

/// Rows on their way to a list, which lays all of its rows out anew whenever some come in: they
/// come in portions that grow with the list, so that a long one costs no more than its length, and
/// a short one is seen row by row.
template <typename Row> class RowBuffer
{
public:
    explicit RowBuffer(std::function<void(const QList<Row> &rows)> show)
        : m_show(std::move(show))
    {
    }

    void Add(Row row)
    {
        constexpr qsizetype share = 4;
        m_pending.append(std::move(row));
        if (share * m_pending.size() >= m_shown)
            Flush();
    }
    void Flush()
    {
        if (m_pending.isEmpty())
            return;
        m_shown += m_pending.size();
        m_show(std::exchange(m_pending, {}));
    }

private:
    std::function<void(const QList<Row> &rows)> m_show;
    QList<Row> m_pending;
    qsizetype m_shown = 0;
};

} // namespace brenix
