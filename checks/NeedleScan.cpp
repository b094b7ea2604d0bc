#include "checks/NeedleScan.h"

namespace brenix {

int NeedleScan::Add(QStringView needle)
{
    const QString folded = LowerCased(needle);
    qsizetype number = m_needles.indexOf(folded);
    if (number < 0) {
        number = m_needles.size();
        m_needles.append(folded);
        m_places.emplace_back();
    }
    return int(number);
}

void NeedleScan::NumberUnits()
{
    m_numbers.fill(0);
    m_farNumbers.clear();
    m_units = 1;
    for (const QString &needle : m_needles) {
        for (const QChar unit : needle) {
            const char16_t code = unit.unicode();
            std::uint16_t &number = code < NearUnits ? m_numbers[code] : m_farNumbers[code];
            if (number == 0)
                number = std::uint16_t(m_units++);
        }
    }
    for (std::size_t code = 0; code < NearUnits; ++code)
        m_numbers[code] = m_numbers[FoldUnit(QChar(char16_t(code))).unicode()];
}

NeedleScan::State NeedleScan::NewState()
{
    m_next.resize(m_next.size() + m_units, 0);
    m_found.emplace_back();
    return State(m_found.size() - 1);
}

void NeedleScan::AddStates()
{
    m_next.clear();
    m_found.clear();
    NewState();
    for (qsizetype number = 0; number < m_needles.size(); ++number) {
        State state = 0;
        for (const QChar character : m_needles[number]) {
            const std::uint16_t unit = NumberOf(character);
            if (Next(state, unit) == 0) {
                const State added = NewState();
                Next(state, unit) = added;
            }
            state = Next(state, unit);
        }
        if (state != 0)
            m_found[state].push_back(int(number));
    }
}

// Where no needle goes on, the scan goes on in the state of the longest beginning of another needle
// that ends here. States are linked in the order of their depth, so that this one is complete.
void NeedleScan::LinkStates()
{
    std::vector<State> shorter(m_found.size(), 0);
    std::vector<State> order{0};
    for (std::size_t i = 0; i < order.size(); ++i) {
        const State state = order[i];
        const State other = shorter[state];
        for (std::uint16_t unit = 0; unit < m_units; ++unit) {
            State &next = Next(state, unit);
            if (next == 0) {
                next = Next(other, unit);
                continue;
            }
            shorter[next] = state == 0 ? 0 : Next(other, unit);
            order.push_back(next);
        }
        if (state != 0)
            m_found[state].insert(
                m_found[state].end(), m_found[other].begin(), m_found[other].end());
    }
    m_finds.clear();
    for (const std::vector<int> &found : m_found)
        m_finds.push_back(!found.empty());
}

void NeedleScan::AddPlaces(State state, qsizetype end)
{
    for (const int number : m_found[state])
        m_places[std::size_t(number)].push_back(end - m_needles[number].size());
}

bool NeedleScan::Run(QStringView text, Pulse &pulse)
{
    NumberUnits();
    AddStates();
    LinkStates();
    State state = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        state = Next(state, NumberOf(text[i]));
        if (m_finds[state])
            AddPlaces(state, i + 1);
        if (!pulse.Step())
            return false;
    }
    return true;
}

} // namespace brenix
