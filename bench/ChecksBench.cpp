#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "checks/ErrorCheck.h"
#include "checks/ErrorChecking.h"
#include "tags/TagCatalogue.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    void Characters(QStringView text)
    {
        benchmark::DoNotOptimize(brenix::ErrorCheck(text, u"page.html"_s));
    }

    void Rules(QStringView text)
    {
        const QStringList &tags = brenix::TagsOfDialect(brenix::AllHtmlTitle);
        benchmark::DoNotOptimize(brenix::ErrorChecking(text, tags));
    }

    struct Engine
    {
        const char *name;
        void (*check)(QStringView text);
        double target; // MB/s of real pages
    };
    constexpr Engine Engines[] = {
        {"Check/characters/", Characters, 60},
        {"Check/rules/", Rules, 35},
    };

    // Where a search that begins anew at each tag would take hours.
    struct Input
    {
        const char *name;
        const char16_t *piece; // over and over; null for real pages
    };
    constexpr Input Inputs[] = {
        {"5 MB", nullptr},
        {"5 MB of <", u"<"},
        {"5 MB of <b>", u"<b>"},
        {"5 MB of <font>", u"<font>"},
        {"5 MB of <img", u"<img"},
        {"5 MB of </", u"</"},
    };

    void Check(benchmark::State &state, const Engine &engine, const Input &input)
    {
        const QByteArray piece = QString::fromUtf16(input.piece).toUtf8();
        const QByteArray bytes
            = input.piece ? piece.repeated(5 * Megabyte / piece.size()) + '>' : Html(5 * Megabyte);
        const QString text = QString::fromUtf8(bytes);
        Floor floor(bytes);

        const Samples samples = MeasureInTurn(state, floor, [&] { engine.check(text); });

        Row row(state);
        row.Times(samples, floor);
        const double cost = samples.Median() * 1e9 / double(bytes.size());
        row.Remark(u"%1 MB/s"_s.arg(1000 / cost, 0, 'f', 0));
        if (!input.piece)
            row.Target(u"ns a byte"_s, cost, 1000 / engine.target);
    }

} // namespace

void RegisterChecks()
{
    for (const Engine &engine : Engines) {
        for (const Input &input : Inputs) {
            benchmark::RegisterBenchmark(
                (std::string(engine.name) + input.name).c_str(),
                [&](benchmark::State &state) { Check(state, engine, input); })
                ->Iterations(5)
                ->UseManualTime();
        }
    }
}

} // namespace bench
