#include "checks/frmKeywords.h"

#include "checks/Keywords.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr int CharactersWide = 50;
    constexpr int WordsHigh = 16;
    constexpr int PictureSize = 32;

    QLabel *NewLabel(const char16_t *name, QWidget *parent)
    {
        auto *label = new QLabel(parent);
        label->setObjectName(QString::fromUtf16(name));
        return label;
    }

} // namespace

frmKeywords::frmKeywords(DocumentModel &page, QWidget *parent)
    : WalkDialog(u"frmKeywords", u"Keywords"_s, parent)
    , m_page(page)
    , m_picture(NewLabel(u"Picture1", this))
    , m_title(NewLabel(u"Label1", this))
    , m_text(NewLabel(u"Label4", this))
    , m_words(new QListWidget(this))
{
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_text->setWordWrap(true);
    auto *step = new QWidget(this);
    auto *layout = new QGridLayout(step);
    layout->setContentsMargins({});
    layout->addWidget(m_picture, 0, 0, 2, 1);
    layout->addWidget(m_title, 0, 1);
    layout->addWidget(m_text, 1, 1);
    layout->setColumnStretch(1, 1);
    Rows().Add(step);
    m_words->setObjectName(u"List2"_s);
    m_words->setAccessibleName(u"Keywords"_s);
    m_words->setUniformItemSizes(true);
    m_words->setEnabled(false);
    m_words->setMinimumSize(fontMetrics().averageCharWidth() * CharactersWide,
                            fontMetrics().lineSpacing() * WordsHigh);
    Rows().Add(m_words, 1);
    AddButtons({.ok = u"Command5",
                .cancel = u"Command7",
                .okCaption = u"&Next"_s,
                .cancelCaption = u"&Close"_s});
    ShowStep(
        QStyle::SP_FileIcon, u"Begin analyze"_s, u"Press next to start analyzing the document"_s);
}

bool frmKeywords::Accepted()
{
    if (m_isAnalyzed) {
        WriteKeywords(m_page, Ticked());
        return true;
    }
    Analyze();
    return false;
}

void frmKeywords::ShowStep(QStyle::StandardPixmap picture,
                           const QString &title,
                           const QString &text)
{
    m_picture->setPixmap(style()->standardIcon(picture).pixmap(QSize(PictureSize, PictureSize),
                                                               devicePixelRatioF()));
    m_title->setText(title);
    m_text->setText(text);
}

void frmKeywords::Analyze()
{
    auto *next = findChild<QPushButton *>(u"Command5"_s);
    next->setEnabled(false);
    ShowStep(QStyle::SP_FileDialogContentsView,
             u"Analyzing..."_s,
             u"Please wait while the page is analyzed"_s);
    const GoOn letEventsRun = LetEventsRun();
    const QStringList words = letEventsRun() && letEventsRun()
        ? Keywords(m_page.rtfText().Text(), letEventsRun)
        : QStringList();
    if (!letEventsRun())
        return;
    for (const QString &word : words) {
        auto *item = new QListWidgetItem(word, m_words);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    m_isAnalyzed = true;
    ShowStep(QStyle::SP_FileDialogListView,
             u"Pick keywords"_s,
             u"Check the most suitable keywords in the list below."_s);
    next->setEnabled(true);
    m_words->setEnabled(true);
    m_words->setCurrentRow(0);
    m_words->setFocus();
}

QStringList frmKeywords::Ticked() const
{
    QStringList words;
    for (int row = 0; row < m_words->count(); ++row) {
        if (m_words->item(row)->checkState() == Qt::Checked)
            words.append(m_words->item(row)->text());
    }
    return words;
}

} // namespace brenix
