#pragma once

#include "app/ActivePage.h"

#include <QWidget>

class QMenu;
class QToolButton;

namespace brenix {

class ClipboardRecord;
class MLListBox;

/// The texts that were copied: a click copies one again, a double click or Enter pastes it into the
/// page. The elements can be kept in a file.
class ClipboardPane : public QWidget
{
    Q_OBJECT

public:
    /// `record` must live as long as the pane.
    ClipboardPane(ClipboardRecord &record, ActivePage activePage, QWidget *parent = nullptr);

private:
    QToolButton *AddButton(int index,
                           const QIcon &icon,
                           const QString &tip,
                           void (ClipboardPane::*)());
    void BuildMenu();
    void CopySelected();
    void RemoveSelected();
    void RemoveAll();
    void ShowMenu();
    void Paste(int index);
    void Save();
    void Load();

    ClipboardRecord &m_record;
    ActivePage m_activePage;
    MLListBox *m_list; // List8
    QMenu *m_menu; // loadsave
};

} // namespace brenix
