#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "bench/Program.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int Openings = 9;
    constexpr double OpenTarget = 1.5; // seconds

    void OpenPage(benchmark::State &state, int largeFile, bool oneLine)
    {
        QByteArray page = Html(5 * Megabyte);
        if (oneLine)
            page.replace("\r\n", " ");
        Floor floor(page);
        Program program;
        Samples samples;
        bool painted = true;
        for ([[maybe_unused]] auto turn : state) {
            floor.Sample();
            const double seconds = SecondsOf([&] { painted &= program.Open(page, largeFile); });
            state.SetIterationTime(seconds);
            samples.Add(seconds);
            program.Close();
        }
        if (!painted)
            return state.SkipWithError("the page was not painted");
        Row row(state);
        row.Times(samples, floor);
        row.Target(u"s to first paint"_s, samples.Median(), OpenTarget);
    }

} // namespace

void RegisterOpening()
{
    struct Case
    {
        const char *name;
        int largeFile;
        bool oneLine;
    };
    for (const Case &row : {Case{"Open/5 MB plain", 20000, false},
                            Case{"Open/5 MB coloured", INT_MAX, false},
                            Case{"Open/5 MB line coloured", INT_MAX, true}}) {
        benchmark::RegisterBenchmark(
            row.name,
            [row](benchmark::State &state) { OpenPage(state, row.largeFile, row.oneLine); })
            ->Iterations(Openings)
            ->UseManualTime();
    }
}

} // namespace bench
