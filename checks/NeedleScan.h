#pragma once

#include "checks/Pulse.h"
#include "support/TextSearch.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <cstdint>
#include <vector>

namespace brenix {

/// Finds many short texts in one pass over a long one, without regard to case: a hundred cost no
/// more than one. To use it: `Add` each, `Run` once, ask for the places.
class NeedleScan
{
public:
    /// The number to ask with; the same for texts that differ in case alone. An empty text has no
    /// places.
    int Add(QStringView needle);

    /// False when `pulse` ended it; the places are then those up to there.
    bool Run(QStringView text, Pulse &pulse);

    /// Where it stands, from 0 and rising; places of one and the same needle may overlap.
    const std::vector<qsizetype> &PlacesOf(int number) const
    {
        return m_places[std::size_t(number)];
    }

private:
    using State = std::uint32_t; // 0 is where nothing has begun yet

    void NumberUnits();
    std::uint16_t NumberOf(QChar unit) const
    {
        if (unit.unicode() >= NearUnits)
            unit = FoldUnit(unit);
        const char16_t code = unit.unicode();
        return code < NearUnits ? m_numbers[code] : m_farNumbers.value(code);
    }
    void AddStates();
    void LinkStates();
    State NewState();
    State &Next(State state, std::uint16_t unit)
    {
        return m_next[std::size_t(state) * m_units + unit];
    }
    void AddPlaces(State state, qsizetype end);

    QStringList m_needles;
    std::vector<std::vector<qsizetype>> m_places;

    // Units that no needle holds are all number 0. Those from `NearUnits` on are rare, and few of
    // them have a number.
    static constexpr char16_t NearUnits = 0x100;
    std::array<std::uint16_t, NearUnits> m_numbers;
    QHash<char16_t, std::uint16_t> m_farNumbers;
    std::size_t m_units = 1;
    std::vector<State> m_next;
    std::vector<std::vector<int>> m_found; // the needles that end in a state
    std::vector<bool> m_finds;
};

} // namespace brenix
