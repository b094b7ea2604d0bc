#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;

namespace brenix {

/// The tip of the day: the next line of the tip file at each start.
class frmTip : public QDialog
{
public:
    explicit frmTip(QWidget *parent = nullptr);

    /// Whether the user wants a tip at start.
    static bool IsWanted();

private:
    QWidget *Page();
    void ShowNextTip();

    QStringList m_tips;
    QLabel *m_tip;
    QCheckBox *m_atStartup;
};

} // namespace brenix
