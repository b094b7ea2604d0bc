#include "checks/frmCompress.h"

#include "checks/SourceCommands.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString Running
        = u"The progressbar to the left, shows how much smaller the source is at the actual time "
          "in the progress. You can press cancel at any time if you want to stop the operation. "
          "When the compressing is finished, you can press OK to change the document, or Cancel to "
          "exit without changes."_s;
    constexpr int HelpCharacters = 60;
    constexpr int HelpLines = 6;

    QLabel *NewLabel(const char16_t *name, const QString &text, QWidget *parent)
    {
        auto *label = new QLabel(text, parent);
        label->setObjectName(QString::fromUtf16(name));
        return label;
    }

} // namespace

frmCompress::frmCompress(DocumentModel &page, QWidget *parent)
    : WalkDialog(u"frmCompress", u"Compress Source"_s, parent)
    , m_page(page)
    , m_text(page.rtfText().Text())
    , m_progress(new QProgressBar(this))
    , m_percent(NewLabel(u"Label3", u"100%"_s, this))
    , m_state(NewLabel(u"Label1", u"Start"_s, this))
{
    m_progress->setObjectName(u"ProgressBar1"_s);
    m_progress->setAccessibleName(u"Size of the source"_s);
    m_progress->setTextVisible(false);
    m_progress->setValue(100);
    AddOptions();
    Rows().Add(m_state);
    auto *size = new QWidget(this);
    auto *row = new QHBoxLayout(size);
    row->setContentsMargins({});
    row->addWidget(m_progress, 1);
    row->addWidget(m_percent);
    m_percent->setMinimumWidth(m_percent->sizeHint().width());
    Rows().Add(size);
    m_help = Rows().Note({});
    m_help->setObjectName(u"Label2"_s);
    m_help->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_help->setMinimumSize(fontMetrics().averageCharWidth() * HelpCharacters,
                           fontMetrics().lineSpacing() * HelpLines);
    AddButtons({.ok = u"Command1", .cancel = u"Command2", .okCaption = u"&Start"_s});

    m_start.setSingleShot(true);
    m_start.setInterval(1);
    connect(&m_start, &QTimer::timeout, this, &frmCompress::Run);
}

void frmCompress::AddOptions()
{
    Rows().Check(u"Check1", u"Remove Line Breaks"_s, m_options.lineBreaks);
    Rows().Check(u"Check2", u"Remove extra spaces"_s, m_options.spaces);
    Rows().Check(u"Check3", u"Simplify tags (<em> to <i> and so on)"_s, m_options.simplify);
    Rows().Check(
        u"Check4", u"Remove unnecessary tags (</img> and similar)"_s, m_options.unnecessary);
    Rows().Check(u"Check5", u"Remove unused tags"_s, m_options.unused);
}

bool frmCompress::Accepted()
{
    if (m_step == Step::Finished) {
        ReplaceSource(m_page, m_text);
        return true;
    }
    if (m_step == Step::Options)
        Start();
    return false;
}

// The run waits until the window shows what it is about to do.
void frmCompress::Start()
{
    m_step = Step::Running;
    for (QCheckBox *option : findChildren<QCheckBox *>())
        option->setEnabled(false);
    auto *ok = findChild<QPushButton *>(u"Command1"_s);
    ok->setText(u"&OK"_s);
    ok->setEnabled(false);
    m_start.start();
}

void frmCompress::Run()
{
    m_help->setText(Running);
    m_state->setText(u"Now compressing..."_s);
    bool isStopped = false;
    const QString compressed = Compress(
        m_text, m_options, [this, &isStopped, letEventsRun = LetEventsRun()](qsizetype length) {
            ShowSize(length);
            isStopped = !letEventsRun();
            return !isStopped;
        });
    if (isStopped)
        return;
    m_text = compressed;
    m_step = Step::Finished;
    m_state->setText(u"Finished!"_s);
    m_help->setText(u"Press OK to confirm or Cancel to exit"_s);
    auto *ok = findChild<QPushButton *>(u"Command1"_s);
    ok->setEnabled(true);
    ok->setFocus();
}

void frmCompress::ShowSize(qsizetype length)
{
    const std::optional<int> percent = SizePercent(length, m_text.size());
    if (!percent)
        return;
    m_progress->setValue(*percent);
    m_percent->setText(u"%1%"_s.arg(*percent));
}

} // namespace brenix
