#pragma once

#include "checks/WalkDialog.h"

class QListWidget;
class QProgressBar;
class QPushButton;

namespace brenix {

/// "Global Search and Replace": replaces a text in all files of one folder and lists each changed
/// line. Pages that are open are not read again.
class frmGlobalSearch : public WalkDialog
{
public:
    /// `folder` is proposed.
    explicit frmGlobalSearch(const QString &folder, QWidget *parent = nullptr);

protected:
    /// Replaces, and keeps the dialog open.
    bool Accepted() override;

private:
    void AddReport();
    void ChooseFolderOfPages();
    void ShowReport(bool isShown);
    void AllowStart();

    struct Fields
    {
        QString find;
        QString replacement;
        QString folder;
        QString type;
    };
    Fields m_fields;
    QProgressBar *m_progress = nullptr;
    QListWidget *m_report = nullptr;
    QPushButton *m_view = nullptr;
    QPushButton *m_hide = nullptr;
    QPushButton *m_start = nullptr;
    bool m_isWorking = false;
};

} // namespace brenix
