#include "support/MessageBoxes.h"

#include "support/ColourText.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    QString BoxTitle()
    {
        return u"Brenix"_s;
    }

    QMessageBox::StandardButtons StandardButtons(Buttons buttons)
    {
        switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::Ok:
            break;
        }
        return QMessageBox::Ok;
    }

    QMessageBox::StandardButton StandardButton(Answer answer)
    {
        switch (answer) {
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
        case Answer::Ok:
            break;
        }
        return QMessageBox::Ok;
    }

    Answer AnswerOf(int button)
    {
        for (const Answer answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
            if (button == StandardButton(answer))
                return answer;
        }
        return Answer::Ok;
    }

    QMessageBox::Icon BoxIcon(Icon icon)
    {
        switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::None:
            break;
        }
        return QMessageBox::NoIcon;
    }

    Answer CloseAnswer(Buttons buttons)
    {
        switch (buttons) {
        case Buttons::OkCancel:
        case Buttons::YesNoCancel:
            return Answer::Cancel;
        case Buttons::YesNo:
            return Answer::No;
        case Buttons::Ok:
            break;
        }
        return Answer::Ok;
    }

    /// A file name or a tag in the text is no markup of the box.
    void SetUp(QMessageBox *box, const QString &text, Icon icon)
    {
        box->setObjectName(u"MsgBox"_s);
        box->setWindowTitle(BoxTitle());
        box->setTextFormat(Qt::PlainText);
        box->setText(text);
        box->setIcon(BoxIcon(icon));
    }

    /// "a|*.x;*.y||b|*.z" as "a (*.x *.y)" and "b (*.z)".
    QStringList NameFilters(const QString &filter)
    {
        QStringList filters;
        QString caption;
        const QStringList parts = filter.split(u'|');
        for (const QString &part : parts) {
            if (caption.isEmpty()) {
                // An empty caption has no patterns behind it: the next part is a caption again.
                caption = part.trimmed();
                continue;
            }
            QStringList patterns;
            const QStringList pieces = part.split(u';', Qt::SkipEmptyParts);
            for (const QString &piece : pieces) {
                // Every name is meant; here "*.*" would leave out the names without a point.
                patterns += piece.trimmed() == u"*.*"_s ? u"*"_s : piece.trimmed();
            }
            if (!patterns.isEmpty())
                filters += caption + u" ("_s + patterns.join(u' ') + u')';
            caption.clear();
        }
        return filters;
    }

    /// The ending that the first pattern of a filter asks for: "css" of "Stylesheet (*.css)", empty
    /// for "All Files (*)".
    QString SuffixOf(const QString &nameFilter)
    {
        static const QRegularExpression pattern(u"\\(\\*\\.([^ *)]+)[^(]*$"_s);
        return pattern.match(nameFilter).captured(1);
    }

    /// A name without an ending gets that of the chosen filter, as the author expects who has just
    /// said what kind of file it is; else the dialog's own.
    void FollowFilter(QFileDialog *chooser, const QString &defaultSuffix)
    {
        // What is selected may come without the patterns.
        const auto follow = [chooser, defaultSuffix](const QString &selected) {
            QString suffix;
            for (const QString &filter : chooser->nameFilters()) {
                if (filter == selected || filter.startsWith(selected + u" ("_s))
                    suffix = SuffixOf(filter);
            }
            chooser->setDefaultSuffix(suffix.isEmpty() ? defaultSuffix : suffix);
        };
        QObject::connect(chooser, &QFileDialog::filterSelected, chooser, follow);
        follow(chooser->selectedNameFilter());
    }

    /// The folder of the last choice, where the next one begins.
    QString &LastFolder()
    {
        static QString folder;
        return folder;
    }

    void ProposeName(QFileDialog *chooser, const QString &name)
    {
        if (name.endsWith(QDir::separator()))
            chooser->setDirectory(name);
        // "*.html" is a pattern, which the dialog would take for the name to use.
        else if (!name.isEmpty() && !name.contains(u'*') && !name.contains(u'?'))
            chooser->selectFile(QDir::fromNativeSeparators(name));
    }

    QString RunFileDialog(const FileDialog &dialog, QFileDialog::FileMode mode)
    {
        QFileDialog chooser(QApplication::activeWindow());
        chooser.setObjectName(u"FileDialog"_s);
        if (!dialog.title.isEmpty())
            chooser.setWindowTitle(dialog.title);
        chooser.setFileMode(mode);
        const bool isSave = mode == QFileDialog::AnyFile;
        chooser.setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        chooser.setOption(QFileDialog::ShowDirsOnly, mode == QFileDialog::Directory);
        // The captions name their patterns themselves.
        chooser.setOption(QFileDialog::HideNameFilterDetails);
        const QStringList filters = NameFilters(dialog.filter);
        chooser.setNameFilters(filters);
        chooser.selectNameFilter(filters.value(dialog.filterIndex - 1));
        chooser.setDefaultSuffix(dialog.defaultSuffix);
        if (isSave)
            FollowFilter(&chooser, dialog.defaultSuffix);
        if (!LastFolder().isEmpty())
            chooser.setDirectory(LastFolder());
        ProposeName(&chooser, dialog.name);
        if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty())
            return {};
        const QString path = chooser.selectedFiles().constFirst();
        LastFolder() = mode == QFileDialog::Directory ? path : QFileInfo(path).absolutePath();
        return QDir::toNativeSeparators(path);
    }

} // namespace

ScriptedAnswers &Scripted()
{
    static ScriptedAnswers answers;
    return answers;
}

Answer MsgBox(const QString &text, Buttons buttons, Icon icon)
{
    const bool isOk = buttons == Buttons::Ok || buttons == Buttons::OkCancel;
    return MsgBox(text, buttons, icon, isOk ? Answer::Ok : Answer::Yes);
}

Answer MsgBox(const QString &text, Buttons buttons, Icon icon, Answer defaultAnswer)
{
    if (Scripted().msgBox)
        return Scripted().msgBox(text, buttons, icon);
    QMessageBox box(QApplication::activeWindow());
    SetUp(&box, text, icon);
    box.setStandardButtons(StandardButtons(buttons));
    box.setDefaultButton(StandardButton(defaultAnswer));
    box.setEscapeButton(StandardButton(CloseAnswer(buttons)));
    return AnswerOf(box.exec());
}

int ChooseBox(const QString &text, const QStringList &captions, Icon icon)
{
    if (Scripted().chooseBox)
        return Scripted().chooseBox(text, captions);
    QMessageBox box(QApplication::activeWindow());
    SetUp(&box, text, icon);
    QList<QAbstractButton *> buttons;
    for (const QString &caption : captions)
        buttons += box.addButton(caption, QMessageBox::AcceptRole);
    // A box without a button for Esc cannot be closed; this one is not seen.
    QPushButton *closed = box.addButton(QMessageBox::Cancel);
    closed->hide();
    box.setEscapeButton(closed);
    box.exec();
    return int(buttons.indexOf(box.clickedButton()));
}

QString InputBox(const QString &prompt, const QString &proposal)
{
    if (Scripted().inputBox)
        return Scripted().inputBox(prompt, proposal);
    QInputDialog box(QApplication::activeWindow());
    box.setObjectName(u"InputBox"_s);
    box.setWindowTitle(BoxTitle());
    box.setLabelText(prompt);
    box.setTextValue(proposal);
    if (auto *label = box.findChild<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

QString OpenFileName(const FileDialog &dialog)
{
    return Scripted().openFileName ? Scripted().openFileName(dialog)
                                   : RunFileDialog(dialog, QFileDialog::ExistingFile);
}

QString SaveFileName(const FileDialog &dialog)
{
    return Scripted().saveFileName ? Scripted().saveFileName(dialog)
                                   : RunFileDialog(dialog, QFileDialog::AnyFile);
}

QString ChooseFolder(const QString &title)
{
    if (Scripted().chooseFolder)
        return Scripted().chooseFolder(title);
    return RunFileDialog({.title = title, .filter = {}, .name = {}, .defaultSuffix = {}},
                         QFileDialog::Directory);
}

std::optional<quint32> ChooseColour(quint32 colour)
{
    if (Scripted().chooseColour)
        return Scripted().chooseColour(colour);
    const QColor start(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
    const QColor chosen = QColorDialog::getColor(start, QApplication::activeWindow());
    if (!chosen.isValid())
        return std::nullopt;
    return quint32(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}

QString ChooseColourText(const QString &text)
{
    const std::optional<quint32> chosen = ChooseColour(ColourOfText(text));
    return chosen ? ColourText(*chosen) : QString();
}

} // namespace brenix
