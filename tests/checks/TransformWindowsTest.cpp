#include "checks/frmCompress.h"
#include "checks/frmKeywords.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class TransformWindows : public testing::Test
{
protected:
    template <typename Control> static Control &Find(const QWidget &window, const QString &name)
    {
        auto *control = window.findChild<Control *>(name);
        if (!control) {
            ADD_FAILURE() << "no control " << qPrintable(name);
            std::abort();
        }
        return *control;
    }
    static QString Shown(const QWidget &window, const QString &name)
    {
        return Find<QLabel>(window, name).text();
    }

    MemoryDocument m_page;
};

class CompressWindow : public TransformWindows
{
protected:
    CompressWindow() { m_page.source.SetText(m_before); }

    void Run(frmCompress &window)
    {
        window.show();
        for (const auto &option : {u"Check1"_s, u"Check2"_s, u"Check3"_s, u"Check4"_s, u"Check5"_s})
            Find<QCheckBox>(window, option).setChecked(true);
        EXPECT_EQ(Start(window).text(), u"&Start"_s);
        Start(window).click();
        EXPECT_EQ(Start(window).text(), u"&OK"_s);
        EXPECT_FALSE(Start(window).isEnabled());
        EXPECT_FALSE(Find<QCheckBox>(window, u"Check1"_s).isEnabled());
        EXPECT_TRUE(WaitFor([&] { return Start(window).isEnabled(); }));
    }
    QPushButton &Start(frmCompress &window) { return Find<QPushButton>(window, u"Command1"_s); }

    const QString m_before = u"<em>a</em>\r\n\r\n<b></b></br></img>"_s;
};

TEST_F(CompressWindow, ChangesThePageAtOk)
{
    frmCompress window(m_page);
    Run(window);
    EXPECT_EQ(m_page.source.Text(), m_before);
    EXPECT_EQ(Shown(window, u"Label1"_s), u"Finished!"_s);
    EXPECT_EQ(Shown(window, u"Label3"_s), u"25%"_s);
    EXPECT_EQ(Find<QProgressBar>(window, u"ProgressBar1"_s).value(), 25);
    Start(window).click();
    EXPECT_TRUE(window.isHidden());
    EXPECT_EQ(m_page.source.Text(), u"<i>a</i>"_s);
    EXPECT_EQ(m_page.source.UndoCount(), 1);
}

TEST_F(CompressWindow, CancelLeavesThePageAsItWas)
{
    frmCompress window(m_page);
    Run(window);
    Find<QPushButton>(window, u"Command2"_s).click();
    EXPECT_TRUE(window.isHidden());
    EXPECT_EQ(m_page.source.Text(), m_before);
}

TEST_F(CompressWindow, CanBeClosedWhileItRuns)
{
    frmCompress window(m_page);
    window.show();
    Find<QCheckBox>(window, u"Check1"_s).setChecked(true);
    QObject::connect(&Find<QProgressBar>(window, u"ProgressBar1"_s),
                     &QProgressBar::valueChanged,
                     &window,
                     &QDialog::reject);
    Start(window).click();
    EXPECT_TRUE(WaitFor([&] { return window.isHidden(); }));
    Settle();
    EXPECT_EQ(Shown(window, u"Label1"_s), u"Now compressing..."_s);
    EXPECT_FALSE(Start(window).isEnabled());
    EXPECT_EQ(m_page.source.Text(), m_before);
}

TEST_F(TransformWindows, KeywordsAreTickedAndWritten)
{
    m_page.source.SetText(u"<head></head>lawn tree hedge"_s);
    frmKeywords window(m_page);
    window.show();
    auto &next = Find<QPushButton>(window, u"Command5"_s);
    auto &words = Find<QListWidget>(window, u"List2"_s);
    EXPECT_EQ(Shown(window, u"Label1"_s), u"Begin analyze"_s);
    next.click();
    EXPECT_EQ(Shown(window, u"Label1"_s), u"Pick keywords"_s);
    ASSERT_EQ(words.count(), 3);
    for (const int row : {0, 2})
        words.item(row)->setCheckState(Qt::Checked);
    next.click();
    EXPECT_TRUE(window.isHidden());
    EXPECT_EQ(m_page.source.Text(),
              u"<head>\r\n<meta name=\"keywords\" content=\"hedge,tree\"></head>lawn tree hedge"_s);
}

} // namespace
