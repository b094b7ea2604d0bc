#pragma once

#include "checks/TidyPresets.h"

#include <QMainWindow>

#include <functional>

class QComboBox;
class QMenu;

namespace brenix {

class CodeHighlight;

/// The editor for Tidy scripts: the preset that is worked on, with its name above and its menus. A
/// script that was changed is never dropped without a question.
class TidyScript : public QMainWindow
{
    Q_OBJECT

public:
    /// `run` gets the script that is to be run on the active page.
    TidyScript(const TidyPresets &presets,
               std::function<void(const QString &script)> run,
               QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // building
    void BuildMenus();
    void BuildToolbar();
    QMenu *AddCommandsMenu();
    QAction *AddAction(QMenu *menu,
                       const char16_t *name,
                       const QString &caption,
                       std::function<void()> command,
                       const QKeySequence &shortcut = {});
    void AddHistoryKeys();

    // commands
    void New();
    bool Save();
    void SaveAs();
    void Delete();
    void Import();
    void Export();
    void Run();
    void Cut();

    QString AskName() const;
    void ShowName(const QString &name);
    bool SaveUnder(const QString &name);
    bool AgreeToLeave(const QString &whatFor);
    void ChoosePreset(const QString &name);
    void Refill();
    void LoadFirst();
    void Load(const QString &name);
    void SetScript(const QString &script);

    TidyPresets m_presets;
    std::function<void(const QString &script)> m_run;
    QComboBox *m_preset; // Preset
    CodeHighlight *m_code; // Code
    QString m_name; // whose script it is, also while another entry is just chosen
    QString m_shownName; // that name before the author typed into it
};

} // namespace brenix
