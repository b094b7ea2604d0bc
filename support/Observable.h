#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace brenix {

/// A named field of a window whose assignment is an event: every handler runs on every assignment,
/// also when the value stays the same, and before the assignment returns. Handlers run in the order
/// in which they were added.
template <typename Value> class Observable
{
public:
    using Handler = std::function<void(const Value &)>;

    Observable() = default;
    explicit Observable(Value value)
        : m_value(std::move(value))
    {
    }
    Observable(const Observable &) = delete;
    Observable &operator=(const Observable &) = delete;

    Observable &operator=(Value value)
    {
        m_value = std::move(value);
        // A handler may assign again or add a handler: take each by index, and by copy.
        for (std::size_t i = 0; i < m_handlers.size(); ++i) {
            const Handler handler = m_handlers[i];
            handler(m_value);
        }
        return *this;
    }

    const Value &operator()() const { return m_value; }

    void OnAssign(Handler handler) { m_handlers.push_back(std::move(handler)); }

private:
    Value m_value{};
    std::vector<Handler> m_handlers;
};

} // namespace brenix
