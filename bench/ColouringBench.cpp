#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "editor/ColourRuns.h"
#include "editor/HighlightBlock.h"

#include <map>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr double RunsTarget = 10; // times the scan
    constexpr double StreamTarget = 20;
    constexpr double GrowthTarget = 1.2; // of the cost of a character in 5 MB

    struct Input
    {
        const char *name;
        qsizetype size;
        int turns;
    };
    // 5 MB comes first: more of the same is compared with it.
    constexpr Input Inputs[] = {
        {"5 MB", 5 * Megabyte, 41},
        {"1 MB", Megabyte, 101},
        {"50 MB", 50 * Megabyte, 5},
    };

    using Work = void (*)(const QString &text, const brenix::SyntaxTables &tables);

    void Runs(const QString &text, const brenix::SyntaxTables &tables)
    {
        benchmark::DoNotOptimize(brenix::ColourRuns(text, tables));
    }

    void Stream(const QString &text, const brenix::SyntaxTables &tables)
    {
        benchmark::DoNotOptimize(brenix::HighlightBlock(text, tables, {}));
    }

    struct Kind
    {
        const char *name;
        Work work;
        double target;
    };
    constexpr Kind Kinds[] = {
        {"Colour/runs/", Runs, RunsTarget},
        {"Colour/stream/", Stream, StreamTarget},
    };

    void Colour(benchmark::State &state, const Kind &kind, const Input &input)
    {
        static std::map<const Kind *, double> costInFirst; // of one unit
        brenix::SyntaxTables tables;
        tables.SetLanguage(brenix::SyntaxTables::Html);
        const QByteArray bytes = Html(input.size);
        const QString text = QString::fromUtf8(bytes);
        Floor floor(bytes);

        const Samples samples = MeasureInTurn(state, floor, [&] { kind.work(text, tables); });

        Row row(state);
        row.Times(samples, floor);
        row.Target(u"times the scan"_s, samples.Median() / floor.Scan(), kind.target);
        const double cost = samples.Median() / double(text.size());
        row.Remark(u"%1 ns a character"_s.arg(cost * 1e9, 0, 'f', 2));
        if (&input == Inputs)
            costInFirst[&kind] = cost;
        else if (const auto first = costInFirst.find(&kind);
                 first != costInFirst.end() && input.size > Inputs->size)
            row.Target(u"of that in 5 MB"_s, cost / first->second, GrowthTarget);
    }

} // namespace

void RegisterColouring()
{
    for (const Kind &kind : Kinds) {
        for (const Input &input : Inputs) {
            benchmark::RegisterBenchmark(
                (std::string(kind.name) + input.name).c_str(),
                [&](benchmark::State &state) { Colour(state, kind, input); })
                ->Iterations(input.turns)
                ->UseManualTime();
        }
    }
}

} // namespace bench
