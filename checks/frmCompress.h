#pragma once

#include "checks/Compressor.h"
#include "checks/WalkDialog.h"

#include <QTimer>

class QLabel;
class QProgressBar;

namespace brenix {

class DocumentModel;

/// Makes the source of a page smaller: options, then a run that shows how small the source is by
/// now, then OK, which puts the result into the page. Cancel leaves the page alone at any time.
class frmCompress : public WalkDialog
{
public:
    explicit frmCompress(DocumentModel &page, QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    enum class Step { Options, Running, Finished };

    void AddOptions();
    void Start();
    void Run();
    void ShowSize(qsizetype length);

    DocumentModel &m_page;
    QString m_text; // RTF
    CompressOptions m_options;
    Step m_step = Step::Options;
    QProgressBar *m_progress; // ProgressBar1
    QLabel *m_percent; // Label3
    QLabel *m_state; // Label1
    QLabel *m_help; // Label2
    QTimer m_start; // Timer1
};

} // namespace brenix
