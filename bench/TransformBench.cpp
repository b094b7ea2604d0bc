#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "checks/Compressor.h"
#include "checks/Formats.h"
#include "checks/Keywords.h"
#include "checks/PlainText.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr qsizetype Size = 5 * Megabyte;
    constexpr int Turns = 21;

    using Work = void (*)(const QString &page);

    void Compress(const QString &page)
    {
        benchmark::DoNotOptimize(brenix::Compress(page,
                                                  {.lineBreaks = true,
                                                   .spaces = true,
                                                   .simplify = true,
                                                   .unnecessary = true,
                                                   .unused = true}));
    }

    template <brenix::Format format> void LayOut(const QString &page)
    {
        benchmark::DoNotOptimize(brenix::FormatMarkup(page, format));
    }

    void Strip(const QString &page)
    {
        benchmark::DoNotOptimize(brenix::StripTags(page));
    }

    void ListKeywords(const QString &page)
    {
        benchmark::DoNotOptimize(brenix::Keywords(page));
    }

    struct Transform
    {
        const char *name;
        Work work;
        double speed; ///< aimed at, in MB a second
    };
    constexpr Transform Transforms[] = {
        {"compress", Compress, 60},
        {"hierarchical", LayOut<brenix::Format::Hierarchical>, 200},
        {"compact", LayOut<brenix::Format::Compact>, 200},
        {"simple", LayOut<brenix::Format::Simple>, 200},
        {"strip", Strip, 200},
        {"keywords", ListKeywords, 10},
    };

    struct Page
    {
        const char *name;
        const char *repeated; ///< nothing: real pages
    };
    // In real pages, one behind the other, the tags left open add up: their hierarchy is 69 million
    // characters long.
    constexpr Page Pages[] = {
        {"real HTML", ""},
        {"closed tags",
         "<ul>\r\n  <li><a href=\"x.html\">Some text</a> and more</li>\r\n</ul>\r\n"},
        {"only <", "<"},
        {"only >", ">"},
        {"open scripts", "<script"},
        {"open braces", "{ "},
        {"deep nesting", "<i>"},
        {"empty elements", "<b><p></p></b>"},
        {"blanks", " "},
        {"common words", " the"},
    };

    QByteArray BytesOf(const Page &page)
    {
        const QByteArray piece(page.repeated);
        return piece.isEmpty() ? Html(Size) : piece.repeated(Size / piece.size());
    }

    void Run(benchmark::State &state, const Transform &transform, const Page &page)
    {
        const QByteArray bytes = BytesOf(page);
        const QString text = QString::fromUtf8(bytes);
        Floor floor(bytes);
        const Samples samples = MeasureInTurn(state, floor, [&] { transform.work(text); });
        Row row(state);
        row.Times(samples, floor);
        constexpr double Nanosecond = 1e-9;
        row.Target(u"ns a byte"_s,
                   samples.Median() / double(bytes.size()) / Nanosecond,
                   1 / (transform.speed * double(Megabyte) * Nanosecond));
    }

} // namespace

void RegisterTransforms()
{
    for (const Transform &transform : Transforms) {
        for (const Page &page : Pages) {
            benchmark::RegisterBenchmark(
                (std::string("Transform/") + transform.name + '/' + page.name).c_str(),
                [&](benchmark::State &state) { Run(state, transform, page); })
                ->Iterations(Turns)
                ->UseManualTime();
        }
    }
}

} // namespace bench
