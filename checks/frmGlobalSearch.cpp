#include "checks/frmGlobalSearch.h"

#include "checks/GlobalReplace.h"
#include "checks/RowBuffer.h"
#include "support/MessageBoxes.h"
#include "support/SettingsStore.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qsizetype LongestRow = 1000;
    constexpr int CharactersWide = 64;
    constexpr int RowsHigh = 10;

    const QStringList FileTypes{
        u"*.*"_s, u"*.asp"_s, u"*.css"_s, u"*.htm"_s, u"*.html"_s, u"*.shtml"_s, u"*.txt"_s};

    /// A page may be one line of megabytes.
    QString Cut(const QString &line)
    {
        return line.size() > LongestRow ? line.left(LongestRow) + u'\u2026' : line;
    }

} // namespace

frmGlobalSearch::frmGlobalSearch(const QString &folder, QWidget *parent)
    : WalkDialog(u"frmGlobalSearch", u"Global Search and Replace"_s, parent)
    , m_fields{.find = {}, .replacement = {}, .folder = folder, .type = FileTypes[0]}
{
    QLineEdit *find = Rows().Text(u"txtContaining", u"&Search for:"_s, m_fields.find);
    Rows().Text(u"txtREplace", u"Replace &With:"_s, m_fields.replacement);
    Rows().Text(u"txtFolder", u"&Folder:"_s, m_fields.folder);
    Rows()
        .ButtonBeside(u"Image1", u"&Browse..."_s, [this] { ChooseFolderOfPages(); })
        ->setToolTip(u"Browse Folders"_s);
    Rows().Combo(u"Combo1", u"File &Type"_s, FileTypes, m_fields.type);
    AddReport();
    AddButtons({.ok = u"cmdStart",
                .cancel = u"Command1",
                .okCaption = u"&Replace"_s,
                .cancelCaption = u"&Close"_s});
    m_start = findChild<QPushButton *>(u"cmdStart"_s);
    connect(find, &QLineEdit::textChanged, this, &frmGlobalSearch::AllowStart);
    AllowStart();
    find->setMinimumWidth(fontMetrics().averageCharWidth() * CharactersWide);
    find->setFocus();
}

void frmGlobalSearch::AddReport()
{
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(u"prg"_s);
    m_progress->setAccessibleName(u"Progress"_s);
    m_progress->setTextVisible(false);
    m_progress->setRange(0, 1);
    Rows().Add(m_progress);
    m_view = Rows().Button(u"Image3", u"&View Report"_s, [this] { ShowReport(true); });
    m_hide = Rows().Button(u"Image4", u"&Hide report"_s, [this] { ShowReport(false); });
    m_report = new QListWidget(this);
    m_report->setObjectName(u"List1"_s);
    m_report->setAccessibleName(u"Report"_s);
    // Thousands of rows: without this each one would be measured.
    m_report->setUniformItemSizes(true);
    m_report->setMinimumHeight(fontMetrics().lineSpacing() * RowsHigh);
    Rows().Add(m_report, 1);
    ShowReport(false);
}

void frmGlobalSearch::ChooseFolderOfPages()
{
    const QString folder = ChooseFolder(u"Browse Folders"_s);
    if (!folder.isEmpty())
        findChild<QLineEdit *>(u"txtFolder"_s)->setText(folder);
}

void frmGlobalSearch::ShowReport(bool isShown)
{
    m_report->setVisible(isShown);
    m_view->setVisible(!isShown);
    m_hide->setVisible(isShown);
    if (!isShown)
        adjustSize();
}

void frmGlobalSearch::AllowStart()
{
    const auto *find = findChild<QLineEdit *>(u"txtContaining"_s);
    m_start->setEnabled(!m_isWorking && !find->text().isEmpty());
}

bool frmGlobalSearch::Accepted()
{
    // The Return key comes here as well.
    if (m_isWorking || m_fields.find.isEmpty())
        return false;
    m_isWorking = true;
    AllowStart();
    m_report->clear();
    RowBuffer<QString> rows([this](const QStringList &lines) { AddLines(*m_report, lines); });
    const GlobalReplaceListener listener{
        .report = [&rows](const QString &line) { rows.Add(Cut(line)); },
        .cannotEdit = [](const QString &message) { MsgBox(message); },
        .progress =
            [this](int done, int all) {
                m_progress->setRange(0, qMax(all, 1));
                m_progress->setValue(done);
            },
        .goOn = LetEventsRun()};
    const QPointer self(this);
    const Fields fields = m_fields;
    const std::optional<int> number
        = GlobalReplace({.folder = fields.folder,
                         .type = fields.type,
                         .find = fields.find,
                         .replacement = fields.replacement,
                         .codec = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s).toLatin1()},
                        listener);
    if (!self)
        return false;
    rows.Flush();
    if (number)
        MsgBox(u"%1 replaced in %2 files "_s.arg(fields.find, QString::number(*number)),
               Buttons::Ok,
               Icon::Information);
    m_isWorking = false;
    AllowStart();
    return false;
}

} // namespace brenix
