#pragma once

#include <QHashFunctions>
#include <QStringView>

#include <cstddef>

namespace brenix {

/// A hash for short words, of which Qt's own costs ten times as much. The seed differs from run to
/// run, so that no page is made of words that collide.
class WordHash
{
public:
    std::size_t operator()(QStringView word) const
    {
        constexpr std::size_t Spread = 0x9E3779B97F4A7C15; // 2^64 by the golden ratio
        std::size_t hash = m_seed;
        for (const QChar unit : word)
            hash = (hash ^ unit.unicode()) * Spread;
        return hash ^ (hash >> 32);
    }

private:
    std::size_t m_seed = QHashSeed::globalSeed();
};

} // namespace brenix
