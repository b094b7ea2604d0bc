#pragma once

#include "support/MessageBoxes.h"

#include <QStringList>

/// Answers every box while it lives, and keeps what was asked. The answers can be set at any time.
class ScriptedBoxes
{
public:
    ScriptedBoxes()
    {
        using namespace brenix;
        Scripted().msgBox = [this](const QString &text, Buttons, Icon) {
            asked.append(text);
            return answer;
        };
        Scripted().inputBox = [this](const QString &prompt, const QString &proposal) {
            asked.append(prompt);
            proposed = proposal;
            return input;
        };
        const auto choose = [this](const FileDialog &dialog) {
            dialogs.append(dialog.title);
            proposed = dialog.name;
            return file;
        };
        Scripted().openFileName = choose;
        Scripted().saveFileName = choose;
    }
    ScriptedBoxes(const ScriptedBoxes &) = delete;
    ScriptedBoxes &operator=(const ScriptedBoxes &) = delete;
    ~ScriptedBoxes() { brenix::Scripted() = {}; }

    brenix::Answer answer = brenix::Answer::Ok;
    QString input;
    QString file;
    QStringList asked; ///< texts of message and input boxes
    QStringList dialogs; ///< titles of file dialogs
    QString proposed; ///< in the last input box or file dialog
};
