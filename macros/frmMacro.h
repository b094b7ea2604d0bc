#pragma once

#include "macros/MacroFiles.h"
#include "support/FormDialog.h"

#include <QTimer>

namespace brenix {

/// "Macro": the macros of the author, each edited in its own file. What is typed is saved by
/// itself, at most ten times a second; a macro that the file's encoding cannot give back can only
/// be read.
class frmMacro : public FormDialog
{
public:
    explicit frmMacro(QWidget *parent = nullptr);

    void done(int result) override;

private:
    QWidget *ListColumn();
    QWidget *TextColumn();
    void Refill(const QString &selected);
    void ShowSelected();
    void OnEdit();
    bool Save();
    void InsertCommand(const QString &command);
    void New();
    void Delete();

    QListWidget *m_list; // List1
    QPlainTextEdit *m_text; // Text1
    QComboBox *m_commands; // Combo1
    QLabel *m_shortcut; // Label5
    QTimer m_saver;
    QString m_name; // of the macro that is shown; empty when none is
    PageEncoding m_encoding;
    QString m_lineEnd;
    bool m_isEdited = false;
    bool m_saveFailed = false; // and was told
};

} // namespace brenix
