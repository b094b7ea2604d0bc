#include "bench/Measure.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    qsizetype CountTags(const QByteArray &bytes)
    {
        qsizetype count = 0;
        const char *const end = bytes.constData() + bytes.size();
        const char *place = bytes.constData();
        while ((place
                = static_cast<const char *>(std::memchr(place, '<', std::size_t(end - place))))) {
            ++count;
            ++place;
        }
        return count;
    }

} // namespace

double Samples::At(double share) const
{
    if (m_seconds.empty())
        return 0;
    std::vector<double> sorted = m_seconds;
    const auto place = sorted.begin() + std::lround(share * double(sorted.size() - 1));
    std::nth_element(sorted.begin(), place, sorted.end());
    return *place;
}

Floor::Floor(QByteArray bytes)
    : m_bytes(std::move(bytes))
    , m_target(m_bytes.size(), '\0')
{
}

void Floor::Sample()
{
    m_copy.Add(SecondsOf([this] {
        std::memcpy(m_target.data(), m_bytes.constData(), std::size_t(m_bytes.size()));
        benchmark::ClobberMemory();
    }));
    m_scan.Add(SecondsOf([this] { benchmark::DoNotOptimize(CountTags(m_bytes)); }));
}

void Row::Times(const Samples &samples, const Floor &floor)
{
    const double median = samples.Median();
    m_state.counters["median"] = median;
    m_state.counters["p95"] = samples.At(0.95);
    m_state.counters["memcpy"] = floor.Copy();
    m_state.counters["scan"] = floor.Scan();
    m_state.counters["of_memcpy"] = median / floor.Copy();
    m_state.counters["of_scan"] = median / floor.Scan();
}

void Row::Target(const QString &what, double found, double target)
{
    Remark(u"%1 %2 (target %3%4)"_s.arg(what)
               .arg(found, 0, 'g', 3)
               .arg(target)
               .arg(found > target ? u", MISSED"_s : QString()));
}

void Row::Remark(const QString &text)
{
    m_remarks.append(text);
    m_state.SetLabel(m_remarks.join(u"; "_s).toStdString());
}

} // namespace bench
