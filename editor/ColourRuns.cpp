#include "editor/ColourRuns.h"

namespace brenix {

namespace {

    ColourRun LookOf(BlockPaint paint)
    {
        switch (paint) {
        case BlockPaint::Declaration:
            return {.colour = RunColour::Keyword, .italic = true};
        case BlockPaint::TableTag:
            return {.colour = RunColour::Operator};
        case BlockPaint::LoneColon:
        case BlockPaint::ServerCode:
            return {.colour = RunColour::Operator, .bold = true};
        case BlockPaint::FreeAmpersand:
        case BlockPaint::OpenEntity:
            return {};
        case BlockPaint::Entity:
            return {.colour = RunColour::Function, .bold = true, .italic = true};
        case BlockPaint::Anchor:
            return {.colour = RunColour::Delimiter, .bold = true};
        case BlockPaint::Other:
            break;
        }
        return {.colour = RunColour::Delimiter};
    }

    RunColour ColourOf(WordClass wordClass)
    {
        switch (wordClass) {
        case WordClass::Keyword:
            return RunColour::Keyword;
        case WordClass::Operator:
            return RunColour::Operator;
        case WordClass::Function:
            return RunColour::Function;
        case WordClass::BlockMark:
            break;
        }
        return RunColour::Default;
    }

    class RunSink
    {
    public:
        static constexpr bool TakesPlainWords = false;

        RunSink(const SyntaxTables &tables, std::optional<BlockPaint> openPaint)
            : m_tables(tables)
            , m_openPaint(openPaint)
        {
        }
        void Word(qsizetype start, qsizetype length, int index)
        {
            if (index >= 0)
                Add(start, length, {.colour = ColourOf(m_tables.WordAt(index).wordClass)});
        }
        void Delimiter(qsizetype start, int index)
        {
            if (SyntaxTables::ShowsColour(index))
                Add(start, 1, {.colour = RunColour::Operator});
        }
        void Block(const ScannedBlock &block)
        {
            const qsizetype length = block.length + block.EndText(m_tables).size();
            const bool continued = !block.closed && m_openPaint;
            const ColourRun look = LookOf(continued ? *m_openPaint : block.paint);
            if (look.colour != RunColour::Default)
                Add(block.start, length, look);
            m_end = block.start + length;
        }
        std::vector<ColourRun> Take() { return std::move(m_runs); }

    private:
        // A block may begin on the last unit of the one before; that unit has been painted.
        void Add(qsizetype start, qsizetype length, ColourRun look)
        {
            const qsizetype from = std::max(start, m_end);
            look.start = qint32(from);
            look.length = qint32(start + length - from);
            if (look.length > 0)
                m_runs.push_back(look);
        }

        const SyntaxTables &m_tables;
        std::optional<BlockPaint> m_openPaint;
        std::vector<ColourRun> m_runs;
        qsizetype m_end = 0;
    };

    class StateSink
    {
    public:
        static constexpr bool TakesPlainWords = false;

        StateSink(const SyntaxTables &tables, const std::vector<int> &places)
            : m_tables(tables)
            , m_places(places)
            , m_states(places.size())
        {
        }
        void Word(qsizetype, qsizetype, int) { }
        void Delimiter(qsizetype, int) { }
        void Block(const ScannedBlock &block)
        {
            const qsizetype finish = block.start + block.length + block.EndText(m_tables).size();
            while (m_next < m_places.size() && m_places[m_next] <= block.start)
                ++m_next;
            // A block that the text leaves open reaches over its end as well.
            while (m_next < m_places.size() && (m_places[m_next] < finish || !block.closed))
                m_states[m_next++] = {block.rule, block.paint};
        }
        std::vector<ScanState> Take() { return std::move(m_states); }

    private:
        const SyntaxTables &m_tables;
        const std::vector<int> &m_places;
        std::vector<ScanState> m_states;
        std::size_t m_next = 0;
    };

    class SpellingSink
    {
    public:
        static constexpr bool TakesPlainWords = false;

        SpellingSink(QStringView text, const SyntaxTables &tables)
            : m_tables(tables)
            , m_text(text.toString())
        {
        }
        void Word(qsizetype start, qsizetype length, int index)
        {
            if (index >= 0)
                m_text.replace(start, length, m_tables.WordAt(index).text);
        }
        void Delimiter(qsizetype, int) { }
        void Block(const ScannedBlock &) { }
        QString Take() { return std::move(m_text); }

    private:
        const SyntaxTables &m_tables;
        QString m_text;
    };

} // namespace

std::vector<ColourRun> ColourRuns(QStringView text,
                                  const SyntaxTables &tables,
                                  ScanState &state,
                                  std::optional<BlockPaint> openPaint)
{
    if (tables.CurrentLanguage() == SyntaxTables::None)
        return {};
    RunSink sink(tables, openPaint);
    state = ScanSyntax(text, tables, sink, state);
    return sink.Take();
}

std::vector<ColourRun> ColourRuns(QStringView text, const SyntaxTables &tables)
{
    ScanState state;
    return ColourRuns(text, tables, state);
}

std::vector<ScanState> StatesAt(QStringView text,
                                const SyntaxTables &tables,
                                const std::vector<int> &places,
                                ScanState state)
{
    if (tables.CurrentLanguage() == SyntaxTables::None)
        return std::vector<ScanState>(places.size());
    StateSink sink(tables, places);
    ScanSyntax(text, tables, sink, state);
    return sink.Take();
}

ScanState AfterLineEnd(ScanState state, const SyntaxTables &tables)
{
    return state.rule >= 0 && tables.ClosesAtLineEnd(state.rule) ? ScanState{} : state;
}

QString WithNormalisedCase(QStringView text, const SyntaxTables &tables)
{
    if (!tables.NormalisesCase() || tables.CurrentLanguage() == SyntaxTables::None)
        return text.toString();
    SpellingSink sink(text, tables);
    ScanSyntax(text, tables, sink);
    return sink.Take();
}

} // namespace brenix
