#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "bench/Program.h"

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int Snapshots = 1000;
    constexpr double TimeTarget = 50; // microseconds
    constexpr double SizeTarget = 4096; // bytes
    constexpr double TotalTarget = 8; // MB

    size_t BytesInUse()
    {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    }

    // Typing at one place, and each character at another one, which shares least.
    struct Place
    {
        const char *name;
        bool scattered;
    };
    constexpr Place Places[] = {
        {"typing", false},
        {"all over the page", true},
    };

    class Typist
    {
    public:
        Typist(brenix::CodeHighlight &source, bool scattered)
            : m_source(source)
            , m_scattered(scattered)
            , m_length(source.TextLength())
        {
            source.SetSelStart(m_length / 2);
        }

        void TypeCharacter()
        {
            constexpr int Stride = 618033;
            if (m_scattered)
                m_source.SetSelStart(int(qint64(++m_count) * Stride % m_length));
            m_source.SetSelText(u"x"_s);
        }

    private:
        brenix::CodeHighlight &m_source;
        bool m_scattered;
        int m_length;
        int m_count = 0;
    };

    void TakeSnapshots(benchmark::State &state, const Place &place)
    {
        const QByteArray page = PageAroundMiddle(Megabyte);
        Floor floor(page);
        Program program;
        // The box itself grows as well when it is typed into: the first turn, without snapshots,
        // tells by how much.
        size_t grownBy[2] = {};
        Samples samples;
        for ([[maybe_unused]] auto turn : state) {
            for (const bool withSnapshots : {false, true}) {
                program.Open(page, INT_MAX);
                Typist typist(program.Source(), place.scattered);
                const size_t before = BytesInUse();
                for (int i = 0; i < Snapshots; ++i) {
                    typist.TypeCharacter();
                    if (withSnapshots)
                        samples.Add(SecondsOf([&] { program.Source().AddUndo(); }));
                }
                grownBy[withSnapshots] = BytesInUse() - before;
                program.Close();
                floor.Sample();
            }
            state.SetIterationTime(samples.Median());
        }
        Row row(state);
        row.Times(samples, floor);
        const double total = double(grownBy[true]) - double(grownBy[false]);
        row.Target(u"us"_s, samples.Median() * 1e6, TimeTarget);
        row.Target(u"bytes each"_s, total / Snapshots, SizeTarget);
        row.Target(u"MB in all"_s, total / double(Megabyte), TotalTarget);
    }

    // The other half of what a snapshot costs: the page's text after a character, beside the text
    // before it.
    void EditText(benchmark::State &state)
    {
        const QByteArray page = PageAroundMiddle(Megabyte);
        Floor floor(page);
        brenix::TextRope text(QString::fromUtf8(page));
        const int place = text.Length() / 2;
        const Samples samples
            = MeasureInTurn(state, floor, [&] { text = text.Replaced(place, 0, u"x"); });
        Row row(state);
        row.Times(samples, floor);
        row.Target(u"us"_s, samples.Median() * 1e6, TimeTarget);
    }

    // Undo or Redo, up to the painted page.
    void GoBack(benchmark::State &state, void (brenix::CodeHighlight::*step)())
    {
        const QByteArray page = PageAroundMiddle(Megabyte);
        Floor floor(page);
        Program program;
        program.Open(page, INT_MAX);
        Typist typist(program.Source(), false);
        const int steps = int(state.max_iterations);
        for (int i = 0; i < steps + 1; ++i) {
            typist.TypeCharacter();
            program.Source().AddUndo();
        }
        if (step == &brenix::CodeHighlight::Redo) {
            for (int i = 0; i < steps; ++i)
                program.Source().Undo();
        }
        program.AwaitPaint();
        const Samples samples = MeasureInTurn(state, floor, [&] {
            (program.Source().*step)();
            program.AwaitPaint();
        });
        Row row(state);
        row.Times(samples, floor);
        row.Remark(u"until it is painted"_s);
    }

} // namespace

void RegisterSnapshots()
{
    constexpr int Steps = 300;
    for (const Place &place : Places) {
        benchmark::RegisterBenchmark((std::string("Snapshot/1 MB/") + place.name).c_str(),
                                     [&](benchmark::State &state) { TakeSnapshots(state, place); })
            ->Iterations(1)
            ->UseManualTime();
    }
    benchmark::RegisterBenchmark("Snapshot/1 MB/text edit", EditText)
        ->Iterations(Snapshots)
        ->UseManualTime();
    benchmark::RegisterBenchmark("Snapshot/1 MB/Undo", GoBack, &brenix::CodeHighlight::Undo)
        ->Iterations(Steps)
        ->UseManualTime();
    benchmark::RegisterBenchmark("Snapshot/1 MB/Redo", GoBack, &brenix::CodeHighlight::Redo)
        ->Iterations(Steps)
        ->UseManualTime();
}

} // namespace bench
