#pragma once

#include "checks/TidyProgram.h"

namespace brenix {

class ErrorCheckerPane;

/// "Check!" of the error checker: Tidy reads a page, and its report goes into the pane. The check
/// ends with the pane, with the page, and where another one begins.
class TidyCheck : public QObject
{
    Q_OBJECT

public:
    /// `tell` gets a line for the author where there is no report. Belongs to the pane.
    TidyCheck(ErrorCheckerPane &pane, std::function<void(const QString &)> tell);

    /// Starts over where a check is under way. The check ends with `page`, whose text it is.
    void Start(const QString &text, const QObject &page);
    bool IsRunning() const { return m_tidy.IsRunning(); }

private:
    void ShowReport(TidyProgram::End end);

    ErrorCheckerPane &m_pane;
    std::function<void(const QString &)> m_tell;
    TidyProgram m_tidy;
    QString m_page; // the copy that Tidy reads
    QString m_report;
    QMetaObject::Connection m_pageGone;
};

} // namespace brenix
