#include "checks/Form30.h"

#include "checks/Estimate.h"
#include "checks/Links.h"
#include "checks/PageFile.h"
#include "checks/RowBuffer.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int CharactersWide = 72;
    constexpr int RowsHigh = 12;

} // namespace

Form30::Form30(DocumentModel &page, QWidget *parent)
    : WalkDialog(u"Form30", u"Estimated Download Time"_s, parent)
    , m_page(page)
    , m_files(new QListWidget(this))
    , m_progress(new QProgressBar(this))
{
    auto *caption = new QLabel(u"&Dependencies"_s, this);
    caption->setBuddy(m_files);
    m_files->setObjectName(u"List1"_s);
    m_files->setAccessibleName(u"Dependencies"_s);
    m_files->setUniformItemSizes(true);
    m_files->setMinimumSize(fontMetrics().averageCharWidth() * CharactersWide,
                            fontMetrics().lineSpacing() * RowsHigh);
    m_progress->setObjectName(u"ProgressBar1"_s);
    m_progress->setAccessibleName(u"Progress"_s);
    m_progress->setTextVisible(false);
    Rows().Add(caption);
    Rows().Add(m_files, 1);
    Rows().Add(m_progress);
    Rows().Add(Sizes());
    AddButtons({.ok = u"Command1", .cancel = nullptr});
    findChild<QPushButton *>(u"Command1"_s)->setText(u"&Close"_s);
    ShowTotal(0, 0);
    StartWhenShown([this] { Scan(); });
}

QWidget *Form30::Sizes()
{
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins({});
    m_size = AddValue(grid, u"Label31", u"Size of the document:"_s);
    m_count = AddValue(grid, u"Label32", u"Number of dependencies:"_s);
    m_totalSize = AddValue(grid, u"TotalFil1", u"Total size in bytes:"_s);
    m_modemTime = AddValue(grid, u"Label37", ModemSpeed.name);
    m_isdnTime = AddValue(grid, u"Label38", IsdnSpeed.name);
    m_speed = Speeds();
    m_chosenTime = new QLabel(box);
    m_chosenTime->setObjectName(u"Label39"_s);
    const int row = grid->rowCount();
    grid->addWidget(m_speed, row, 0);
    grid->addWidget(m_chosenTime, row, 1);
    grid->setColumnStretch(1, 1);
    return box;
}

QLabel *Form30::AddValue(QGridLayout *grid, const char16_t *name, const QString &caption)
{
    auto *value = new QLabel(this);
    value->setObjectName(QString::fromUtf16(name));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(caption, this), row, 0);
    grid->addWidget(value, row, 1);
    return value;
}

QComboBox *Form30::Speeds()
{
    auto *speeds = new QComboBox(this);
    speeds->setObjectName(u"Combo1"_s);
    speeds->setAccessibleName(u"Line speed"_s);
    for (const LineSpeed &speed : LineSpeeds())
        speeds->addItem(speed.name, speed.divisor);
    connect(speeds, &QComboBox::currentIndexChanged, this, [this] { ShowChosenTime(); });
    return speeds;
}

void Form30::Scan()
{
    const EstimatedPage page{.text = m_page.rtfText().Text(),
                             .file = FileOfPage(m_page),
                             .folder = LinkFolder(m_page.Folder())};
    m_progress->setMaximum(qMax(1, int(page.text.size())));
    RowBuffer<QString> rows([this](const QStringList &lines) { AddLines(*m_files, lines); });
    const EstimateListener listener{.report = [&rows](const QString &line) { rows.Add(line); },
                                    .document
                                    = [this](qint64 size) { m_size->setText(Kilobytes(size)); },
                                    .progress =
                                        [this](qsizetype position, int count, qint64 total) {
                                            m_progress->setValue(int(position));
                                            ShowTotal(count, total);
                                        },
                                    .goOn = LetEventsRun()};
    // The dialog may be gone when it was stopped.
    if (!EstimateDownload(page, listener))
        return;
    rows.Flush();
    m_progress->setValue(m_progress->maximum());
}

void Form30::ShowTotal(int count, qint64 total)
{
    m_total = total;
    m_count->setText(QString::number(count));
    m_totalSize->setText(QString::number(total));
    ShowTime(m_modemTime, ModemSpeed.divisor);
    ShowTime(m_isdnTime, IsdnSpeed.divisor);
    ShowChosenTime();
}

void Form30::ShowTime(QLabel *label, int divisor) const
{
    const DownloadTime time = TimeFor(m_total, divisor);
    label->setText(time.text);
    label->setToolTip(time.unrounded);
}

void Form30::ShowChosenTime() const
{
    ShowTime(m_chosenTime, m_speed->currentData().toInt());
}

} // namespace brenix
