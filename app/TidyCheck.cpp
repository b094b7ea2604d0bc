#include "app/TidyCheck.h"

#include "app/ErrorCheckerPane.h"
#include "checks/TidyExchange.h"
#include "checks/TidyReport.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qsizetype LongestReport = qsizetype(4) << 20; // bytes; some fifty thousand lines

} // namespace

TidyCheck::TidyCheck(ErrorCheckerPane &pane, std::function<void(const QString &)> tell)
    : QObject(&pane)
    , m_pane(pane)
    , m_tell(std::move(tell))
{
    connect(&pane, &ErrorCheckerPane::Cleared, &m_tidy, &TidyProgram::Stop);
}

void TidyCheck::Start(const QString &text, const QObject &page)
{
    m_pane.Clear();
    m_pane.AddLines({u"Checking document..."_s, QString()});
    const QString folder = ExchangeRoot(u'C');
    m_page = folder + QDir::separator() + u"chkdoc.txt"_s;
    m_report = folder + QDir::separator() + u"error.txt"_s;
    QFile::remove(m_report);
    if (folder.isEmpty() || !WriteAuthorFile(m_page, text.toUtf8()).isEmpty()) {
        m_tell(u"The page is not checked: there is no room for its copy"_s);
        return;
    }
    disconnect(m_pageGone);
    m_pageGone = connect(&page, &QObject::destroyed, &m_tidy, &TidyProgram::Stop);
    m_tidy.Start(TidyCheckArguments(m_report, m_page),
                 [this](TidyProgram::End end, int) { ShowReport(end); });
}

void TidyCheck::ShowReport(TidyProgram::End end)
{
    const FileContent report = ReadAuthorFile(m_report);
    QFile::remove(m_page);
    QFile::remove(m_report);
    if (end == TidyProgram::End::Missing) {
        m_tell(u"The page is not checked: there is no Tidy on this machine"_s);
        return;
    }
    if (end == TidyProgram::End::Broken || !report.error.isEmpty()) {
        m_tell(u"The page is not checked: Tidy has failed"_s);
        return;
    }
    if (report.bytes.size() > LongestReport)
        m_tell(u"The report is very long; its end is left out"_s);
    m_pane.AddLines(TidyReportLines(QString::fromUtf8(report.bytes.left(LongestReport)), m_page));
}

} // namespace brenix
