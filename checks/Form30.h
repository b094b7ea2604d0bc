#pragma once

#include "checks/WalkDialog.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QListWidget;
class QProgressBar;

namespace brenix {

class DocumentModel;

/// "Estimated Download Time": the files that a page depends on, their sizes, and how long they take
/// at several line speeds.
class Form30 : public WalkDialog
{
public:
    explicit Form30(DocumentModel &page, QWidget *parent = nullptr);

private:
    QWidget *Sizes();
    QLabel *AddValue(QGridLayout *grid, const char16_t *name, const QString &caption);
    QComboBox *Speeds();
    void Scan();
    void ShowTotal(int count, qint64 total);
    void ShowTime(QLabel *label, int divisor) const;
    void ShowChosenTime() const;

    DocumentModel &m_page;
    QListWidget *m_files;
    QProgressBar *m_progress;
    QComboBox *m_speed = nullptr;
    QLabel *m_size = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_totalSize = nullptr;
    QLabel *m_chosenTime = nullptr;
    QLabel *m_modemTime = nullptr;
    QLabel *m_isdnTime = nullptr;
    qint64 m_total = 0;
};

} // namespace brenix
