#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "bench/Program.h"

#include <QApplication>
#include <QKeyEvent>

#include <ctime>
#include <map>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int Keys = 150;
    constexpr double GrowthTarget = 1.5; // of the page of 10 kB
    constexpr int AllColoured = INT_MAX;
    constexpr int UsualLimit = 20000;

    struct Page
    {
        const char *name;
        qsizetype size;
        bool oneLine;
        int largeFile;
    };
    // The first one is what the others are compared with.
    constexpr Page Pages[] = {
        {"10 kB", 10 * Kilobyte, false, AllColoured},
        {"1 MB", Megabyte, false, AllColoured},
        {"1 MB plain", Megabyte, false, UsualLimit},
        {"5 MB", 5 * Megabyte, false, AllColoured},
        {"1 MB line", Megabyte, true, AllColoured},
        {"1 MB line plain", Megabyte, true, UsualLimit},
    };

    struct Key
    {
        const char *name;
        Qt::Key key;
        const char16_t *text;
        Qt::Key undo; // the key that brings the page back, pressed between the measured ones
        const char16_t *undoText;
        bool undoFirst;
    };
    constexpr Key KeyRows[] = {
        {"letter", Qt::Key_E, u"e", Qt::Key_Backspace, u"\b", false},
        {"blank", Qt::Key_Space, u" ", Qt::Key_Backspace, u"\b", false},
        {"Enter", Qt::Key_Return, u"\r", Qt::Key_Backspace, u"\b", false},
        {"tag list", Qt::Key_Less, u"<", Qt::Key_Backspace, u"\b", false},
        {"end tag", Qt::Key_Greater, u">", Qt::Key_Backspace, u"\b", false},
        {"Backspace", Qt::Key_Backspace, u"\b", Qt::Key_E, u"e", true},
    };

    double ProcessorTime()
    {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
    }

    bool Press(Program &program, Qt::Key key, const char16_t *text)
    {
        const QString entered = QString::fromUtf16(text);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, entered);
            QApplication::sendEvent(&program.Source(), &event);
        }
        return program.AwaitPaint();
    }

    QByteArray BytesOf(const Page &page)
    {
        QByteArray bytes = PageAroundMiddle(page.size);
        if (page.oneLine)
            bytes.replace("\r\n", " ");
        return bytes;
    }

    void PressKeys(benchmark::State &state, const Page &page, const Key &key)
    {
        static std::map<const Key *, double> inFirst;
        const QByteArray bytes = BytesOf(page);
        Floor floor(bytes);
        Program program;
        if (!program.Open(bytes, page.largeFile))
            return state.SkipWithError("the page was not painted");
        program.Source().SetSelStart(program.Source().TextLength() / 2);
        program.Source().ensureCursorVisible();
        program.Settle();

        Samples samples;
        Samples processor;
        bool painted = true;
        for ([[maybe_unused]] auto turn : state) {
            floor.Sample();
            if (key.undoFirst)
                painted &= Press(program, key.undo, key.undoText);
            program.Settle();
            const double before = ProcessorTime();
            const double seconds = SecondsOf([&] { painted &= Press(program, key.key, key.text); });
            program.Settle();
            processor.Add(ProcessorTime() - before);
            samples.Add(seconds);
            state.SetIterationTime(seconds);
            if (!key.undoFirst)
                painted &= Press(program, key.undo, key.undoText);
        }
        Row row(state);
        row.Times(samples, floor);
        if (!painted)
            row.Remark(u"a key was not painted"_s);
        // Compared by processor time, timers included: a busy machine does not change it.
        const double cost = processor.Median();
        row.Remark(u"processor %1 us with timers"_s.arg(cost * 1e6, 0, 'f', 0));
        if (&page == Pages)
            inFirst[&key] = cost;
        else if (const auto first = inFirst.find(&key); first != inFirst.end())
            row.Target(u"times 10 kB"_s, cost / first->second, GrowthTarget);
    }

} // namespace

void RegisterKeys()
{
    for (const Key &key : KeyRows) {
        for (const Page &page : Pages) {
            const std::string name = std::string("Key/") + key.name + '/' + page.name;
            benchmark::RegisterBenchmark(
                name.c_str(), [&](benchmark::State &state) { PressKeys(state, page, key); })
                ->Iterations(Keys)
                ->UseManualTime();
        }
    }
}

} // namespace bench
