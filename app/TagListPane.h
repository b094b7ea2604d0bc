#pragma once

#include "app/ActivePage.h"

#include <QWidget>

class QComboBox;
class QListWidget;

namespace brenix {

/// The tags of a dialect: a double click or Enter inserts one. The dialect is the window's, and
/// lives on when the pane does not.
class TagListPane : public QWidget
{
    Q_OBJECT

public:
    TagListPane(const QString &dialect, ActivePage activePage, QWidget *parent = nullptr);

signals:
    void DialectChosen(const QString &dialect);

private:
    void Fill(const QString &dialect);

    QComboBox *m_filter; // Filter
    QListWidget *m_tags; // List4
};

} // namespace brenix
