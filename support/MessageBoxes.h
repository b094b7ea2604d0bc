#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace brenix {

/// The one door to message boxes, input boxes and file choosers, whose answers a test can script. A
/// box is titled with the program's name and owned by the active window.

enum class Icon { None, Information, Question, Warning, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// Closing the box or Esc answers Cancel where there is a Cancel button, else No or Ok.
/// `defaultAnswer` is what Enter presses.
Answer MsgBox(const QString &text, Buttons buttons = Buttons::Ok, Icon icon = Icon::None);
Answer MsgBox(const QString &text, Buttons buttons, Icon icon, Answer defaultAnswer);

/// A question with own captions for its buttons; the number of the chosen one, from 0, or -1 when
/// the box was closed.
int ChooseBox(const QString &text, const QStringList &captions, Icon icon);

/// The trimmed answer is the caller's matter; empty when cancelled.
QString InputBox(const QString &prompt, const QString &proposal);

/// A file dialog. `filter` has the form "caption|patterns|caption|patterns", patterns separated by
/// ";"; empty pairs are skipped. `name` is the proposed name, or the folder to start in with a
/// separator at its end. Returns the chosen path, empty when cancelled.
struct FileDialog
{
    QString title = {};
    QString filter = {};
    QString name = {};
    /// Without a point; added to a name that has none. When saving, the ending that the chosen
    /// filter names goes before it.
    QString defaultSuffix = {};
    int filterIndex = 1; ///< of the filter that is chosen at first
};
QString OpenFileName(const FileDialog &dialog);
QString SaveFileName(const FileDialog &dialog); ///< asks before an existing file is overwritten

/// The chosen folder, without a separator at its end; empty when cancelled.
QString ChooseFolder(const QString &title);

/// The system's colour dialog; colours in blue-green-red order, nothing when cancelled.
std::optional<quint32> ChooseColour(quint32 colour);
/// The same for a field that holds a colour as pages write it: `text` is what stands in it, and the
/// answer "#" and six digits. Empty when cancelled.
QString ChooseColourText(const QString &text);

/// Answers in place of the user. A test sets the functions that it expects to be asked; the others
/// stay as they are.
struct ScriptedAnswers
{
    std::function<Answer(const QString &text, Buttons buttons, Icon icon)> msgBox;
    std::function<int(const QString &text, const QStringList &captions)> chooseBox;
    std::function<QString(const QString &prompt, const QString &proposal)> inputBox;
    std::function<QString(const FileDialog &dialog)> openFileName;
    std::function<QString(const FileDialog &dialog)> saveFileName;
    std::function<QString(const QString &title)> chooseFolder;
    std::function<std::optional<quint32>(quint32 colour)> chooseColour;
};
ScriptedAnswers &Scripted();

} // namespace brenix
