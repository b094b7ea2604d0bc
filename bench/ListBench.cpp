#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "bench/Program.h"
#include "support/SettingsStore.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int Lists = 60;
    constexpr double Timer = 1; // ms, that each list waits
    constexpr double Frame = 16.7; // ms

    struct Page
    {
        const char *name;
        qsizetype size;
        bool oneLine;
    };
    constexpr Page Pages[] = {
        {"10 kB", 10 * Kilobyte, false},
        {"1 MB", Megabyte, false},
        {"1 MB line", Megabyte, true},
    };

    struct List
    {
        const char *name;
        const char16_t *control;
        const char16_t *before; // the caret is between the two
        const char16_t *behind;
        Qt::Key key;
        const char16_t *text;
    };
    constexpr List ListRows[] = {
        {"tags", u"List2", u"", u"", Qt::Key_Less, u"<"},
        {"attributes", u"List1", u"<body", u">", Qt::Key_Space, u" "},
        {"values", u"List5", u"<td align=", u">", Qt::Key_QuoteDbl, u"\""},
    };

    void Press(Program &program, Qt::Key key, const char16_t *text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString::fromUtf16(text));
        QApplication::sendEvent(&program.Source(), &event);
    }

    void PlaceCaret(brenix::CodeHighlight &source, const List &list)
    {
        const QString before = QString::fromUtf16(list.before);
        const int middle = source.TextLength() / 2;
        source.SetSelStart(middle);
        source.SetSelText(before + QString::fromUtf16(list.behind));
        source.SetSelStart(middle + int(before.size()));
        source.ensureCursorVisible();
    }

    // From the key until the list is painted.
    void BringUp(benchmark::State &state, const Page &page, const List &list)
    {
        for (const auto &[section, key] : {std::pair(u"Auto", u"TagDuration"),
                                           std::pair(u"Auto", u"AttributeDuration"),
                                           std::pair(u"Settings", u"Value")})
            brenix::SaveSetting(section, key, QString::number(Timer));
        QByteArray bytes = PageAroundMiddle(page.size);
        if (page.oneLine)
            bytes.replace("\r\n", " ");
        Floor floor(bytes);
        Program program;
        if (!program.Open(bytes, INT_MAX))
            return state.SkipWithError("the page was not painted");
        PlaceCaret(program.Source(), list);
        program.Settle();

        const QString control = QString::fromUtf16(list.control);
        Samples samples;
        bool painted = true;
        for ([[maybe_unused]] auto turn : state) {
            floor.Sample();
            const double seconds = SecondsOf([&] {
                Press(program, list.key, list.text);
                painted &= program.AwaitPaint(control);
            });
            samples.Add(seconds);
            state.SetIterationTime(seconds);
            Press(program, Qt::Key_Backspace, u"\b"); // takes the list away as well
            program.Settle();
        }
        if (!painted)
            return state.SkipWithError("the list was not painted");
        Row row(state);
        row.Times(samples, floor);
        row.Target(u"ms behind its timer"_s, samples.Median() * 1000 - Timer, Frame);
    }

} // namespace

void RegisterLists()
{
    for (const List &list : ListRows) {
        for (const Page &page : Pages) {
            const std::string name = std::string("List/") + list.name + '/' + page.name;
            benchmark::RegisterBenchmark(
                name.c_str(), [&](benchmark::State &state) { BringUp(state, page, list); })
                ->Iterations(Lists)
                ->UseManualTime();
        }
    }
}

} // namespace bench
