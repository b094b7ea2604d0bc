#include "app/ErrorCheckerPane.h"

#include "app/PaneList.h"
#include "app/TakeDesign.h"
#include "checks/ReportLine.h"
#include "support/DocumentModel.h"
#include "support/ShowSource.h"
#include "support/SourceView.h"

#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString CheckCaption = u"Check!"_s;
    const QString StopCaption = u"Stop"_s;

    /// A report may have more lines than the page has characters, and a row takes a few hundred
    /// bytes. Its last lines are the totals.
    constexpr qsizetype MostRows = 100'000;
    constexpr qsizetype LastRows = 4;

    QStringList WithoutMiddle(const QStringList &lines)
    {
        const qsizetype leftOut = lines.size() - MostRows - LastRows;
        if (leftOut <= 0)
            return lines;
        return lines.first(MostRows) + QStringList(u"... (%1 lines more)"_s.arg(leftOut))
            + lines.last(LastRows);
    }

    void MoveCaret(SourceView &source, const std::vector<CaretMove> &moves)
    {
        for (const CaretMove &move : moves) {
            if (move.position >= 0)
                source.SetSelStart(int(move.position));
            if (move.focus)
                source.SetFocus();
        }
    }

} // namespace

ErrorCheckerPane::ErrorCheckerPane(ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_activePage(std::move(activePage))
    , m_report(NewPaneList(u"List5"_s, u"Report"_s, this))
    , m_button(new QPushButton(CheckCaption, this))
{
    setObjectName(u"ErrorChecker"_s);
    m_report->setTextElideMode(Qt::ElideRight);
    m_report->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_button->setObjectName(u"Command3"_s);
    connect(m_button, &QPushButton::clicked, this, &ErrorCheckerPane::Press);
    const auto jump = [this](QListWidgetItem *item) { JumpTo(item->text()); };
    connect(m_report, &QListWidget::itemClicked, this, jump);
    connect(m_report, &QListWidget::itemActivated, this, jump);
    QVBoxLayout *layout = NewPaneLayout(this);
    layout->addWidget(m_report, 1);
    layout->addWidget(m_button);
    setFocusProxy(m_button);
    SetCheck({});
}

void ErrorCheckerPane::SetCheck(std::function<void()> check)
{
    m_check = std::move(check);
    m_button->setEnabled(bool(m_check));
    m_button->setToolTip(m_check ? u"Check the page for errors"_s
                                 : u"There is no checker for pages here"_s);
}

void ErrorCheckerPane::AddChecker(const char16_t *name, const QString &caption, Checker checker)
{
    auto *action = new QAction(caption, m_report);
    action->setObjectName(QString::fromUtf16(name));
    connect(
        action, &QAction::triggered, this, [this, checker = std::move(checker)] { Run(checker); });
    m_report->addAction(action);
}

bool ErrorCheckerPane::IsRunning() const
{
    return m_button->text() == StopCaption;
}

void ErrorCheckerPane::Press()
{
    if (IsRunning())
        m_button->setText(CheckCaption);
    else
        m_check();
}

// The checker is a copy and looked after here: when events have run, the pane and its actions may
// be gone.
void ErrorCheckerPane::Run(Checker checker)
{
    DocumentModel *page = m_activePage();
    if (!page || IsRunning() || !TakeNewestText(*page))
        return;
    Clear();
    const bool couldCheck = m_button->isEnabled();
    m_button->setEnabled(true);
    m_button->setText(StopCaption);
    const QPointer self(this);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const CheckReport report = checker(page->rtfText().Text(), page->Caption(), [self] {
        QCoreApplication::processEvents();
        return self && self->IsRunning() && self->window()->isVisible();
    });
    QGuiApplication::restoreOverrideCursor();
    if (!self)
        return;
    m_button->setText(CheckCaption);
    m_button->setEnabled(couldCheck);
    AddLines(WithoutMiddle(report.lines));
    if (m_activePage() == page)
        MoveCaret(page->rtfText(), report.caretMoves);
}

void ErrorCheckerPane::Clear()
{
    m_report->clear();
    emit Cleared();
}

void ErrorCheckerPane::AddLine(const QString &line)
{
    AddLines({line});
}

void ErrorCheckerPane::AddLines(const QStringList &lines)
{
    const int before = m_report->count();
    m_report->addItems(lines);
    // Reports are wider than the pane.
    for (int row = before; row < m_report->count(); ++row)
        m_report->item(row)->setToolTip(PlainTip(lines[row - before]));
}

void ErrorCheckerPane::JumpTo(const QString &line)
{
    DocumentModel *page = m_activePage();
    const std::optional<ReportPlace> place = PlaceOfReportLine(line);
    const std::optional<int> position = PositionOfReportLine(line);
    if (!page || (!place && !position) || !BringUpSource(*page))
        return;
    SourceView &source = page->rtfText();
    if (place) {
        source.SetLineIndex(place->line);
        source.SetSelStart(source.SelStart() + place->column);
    } else {
        source.SetSelStart(*position);
    }
    source.SetFocus();
}

} // namespace brenix
