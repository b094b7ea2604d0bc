#include "editor/SnapshotHistory.h"

#include <QRandomGenerator>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// The history with full copies. A slot that does not exist holds no text, and no caret can be
// written to it.
class NaiveHistory
{
public:
    struct Step
    {
        bool restored = false;
        QString text;
        std::optional<int> caret;
        friend bool operator==(const Step &, const Step &) = default;
    };

    void AddUndo(const QString &text, int caret)
    {
        index = index + 1 >= 1000 ? 1 : index + 1;
        if (selIndex >= 1000)
            selIndex = 1;
        m_text[index] = text;
        ++selIndex;
        if (selIndex >= 0)
            m_sel[selIndex] = caret;
    }
    Step Move(int by)
    {
        const auto holdsText
            = [this](int slot) { return 0 <= slot && slot <= 1000 && !m_text[slot].isEmpty(); };
        if (!holdsText(index + by) && !holdsText(index + 2 * by))
            return {};
        index += by;
        selIndex += by;
        const bool kept = 0 <= selIndex && selIndex <= 1000;
        return {true, m_text[index], kept ? m_sel[selIndex] : std::nullopt};
    }

    int index = 0;
    int selIndex = 0;

private:
    QString m_text[1001];
    std::optional<int> m_sel[1001];
};

NaiveHistory::Step StepOf(const std::optional<SnapshotHistory::Restored> &restored)
{
    if (!restored)
        return {};
    return {true, restored->text.Mid(0, restored->text.Length()), restored->caret};
}

} // namespace

TEST(SnapshotHistory, AgreesWithFullCopies)
{
    for (const quint32 seed : {1u, 2u, 3u}) {
        QRandomGenerator random(seed);
        const auto history = std::make_unique<SnapshotHistory>();
        const auto naive = std::make_unique<NaiveHistory>();
        EXPECT_EQ(StepOf(history->Undo()), NaiveHistory::Step());
        EXPECT_EQ(StepOf(history->Redo()), NaiveHistory::Step());
        for (int i = 0; i < 30000; ++i) {
            // The neighbourhood of the turn is visited often in both directions.
            const int choice = random.bounded(100);
            if (choice < (naive->index < 4 || naive->index > 996 ? 40 : 94)) {
                const QString text = random.bounded(8) ? QString::number(i) : QString();
                history->AddUndo(TextRope(text), i);
                naive->AddUndo(text, i);
            } else {
                const int by = choice % 2 ? 1 : -1;
                const auto restored = by > 0 ? history->Redo() : history->Undo();
                ASSERT_EQ(StepOf(restored), naive->Move(by)) << "seed " << seed << " step " << i;
            }
            ASSERT_EQ(history->UndoIndex(), naive->index) << "seed " << seed << " step " << i;
            ASSERT_EQ(history->UndoSelIndex(), naive->selIndex) << "seed " << seed << " step " << i;
        }
    }
}

TEST(SnapshotHistory, TheTurn)
{
    const auto history = std::make_unique<SnapshotHistory>();
    for (int i = 1; i <= 1000; ++i)
        history->AddUndo(TextRope(QString::number(i)), i);
    EXPECT_EQ(history->UndoIndex(), 1);
    EXPECT_EQ(history->UndoSelIndex(), 1000);
    EXPECT_FALSE(history->Undo()) << "slot 1 is the floor";
    const auto older = history->Redo();
    ASSERT_TRUE(older);
    EXPECT_EQ(older->text.Mid(0, 9), u"2"_s) << "a slot that was not yet overwritten";
    EXPECT_FALSE(older->caret);
}

// Each turn of the ring that is met by a Redo takes the two indexes further apart.
TEST(SnapshotHistory, TheIndexesNeverLeaveTheSlots)
{
    const auto history = std::make_unique<SnapshotHistory>();
    const TextRope text(u"x");
    for (int turn = 0; turn < 6; ++turn) {
        do
            history->AddUndo(text, 0);
        while (history->UndoSelIndex() != 1000);
        history->Redo();
        history->AddUndo(text, 0);
    }
    while (history->Undo()) { }
    ASSERT_LT(history->UndoSelIndex(), 0);
    history->AddUndo(text, 4);
    history->AddUndo(text, 5);
    ASSERT_TRUE(history->Undo());
}
