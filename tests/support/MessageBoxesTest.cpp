#include "support/MessageBoxes.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// Runs as soon as the box that is opened next waits for the user.
template <typename Box, typename Action> void WhenOpen(Action action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        action(box);
    });
}

void Press(QWidget *widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
}

QStringList NameFiltersOf(const QString &filter)
{
    QStringList filters;
    WhenOpen<QFileDialog>([&filters](QFileDialog *box) {
        filters = box->nameFilters();
        box->reject();
    });
    EXPECT_EQ(OpenFileName({.title = u"Open"_s, .filter = filter, .name = {}, .defaultSuffix = {}}),
              QString());
    return filters;
}

} // namespace

TEST(MessageBoxes, ClosingAndEnter)
{
    struct Case
    {
        Buttons buttons;
        Answer closed;
        Answer entered;
    };
    const Case cases[] = {{Buttons::Ok, Answer::Ok, Answer::Ok},
                          {Buttons::OkCancel, Answer::Cancel, Answer::Ok},
                          {Buttons::YesNo, Answer::No, Answer::Yes},
                          {Buttons::YesNoCancel, Answer::Cancel, Answer::Yes}};
    for (const Case &row : cases) {
        WhenOpen<QMessageBox>([](QMessageBox *box) { Press(box, Qt::Key_Escape); });
        EXPECT_EQ(MsgBox(u"x"_s, row.buttons), row.closed);
        WhenOpen<QMessageBox>([](QMessageBox *box) { box->close(); });
        EXPECT_EQ(MsgBox(u"x"_s, row.buttons), row.closed);
        WhenOpen<QMessageBox>([](QMessageBox *box) { Press(box, Qt::Key_Return); });
        EXPECT_EQ(MsgBox(u"x"_s, row.buttons), row.entered);
        WhenOpen<QMessageBox>([](QMessageBox *box) { Press(box, Qt::Key_Return); });
        EXPECT_EQ(MsgBox(u"x"_s, row.buttons, Icon::Warning, row.closed), row.closed);
    }
}

TEST(MessageBoxes, TheTextIsNoMarkup)
{
    WhenOpen<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->windowTitle(), u"Brenix"_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->icon(), QMessageBox::Critical);
        box->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(MsgBox(u"Can't save '<b>.html'"_s, Buttons::YesNoCancel, Icon::Critical), Answer::No);
}

TEST(MessageBoxes, ChoosingAmongOwnCaptions)
{
    const QStringList captions = {u"As &UTF-8"_s, u"As reference"_s, u"Cancel"_s};
    const auto choose = [&captions](const QString &caption) {
        WhenOpen<QMessageBox>([caption](QMessageBox *box) {
            QStringList seen;
            for (QAbstractButton *button : box->findChild<QDialogButtonBox *>()->buttons()) {
                if (button->isVisible())
                    seen += button->text();
            }
            EXPECT_EQ(seen.size(), 3);
            for (QAbstractButton *button : box->buttons()) {
                if (button->isVisible() && button->text() == caption)
                    return button->click();
            }
            box->close();
        });
        return ChooseBox(u"How?"_s, captions, Icon::Question);
    };
    EXPECT_EQ(choose(captions[0]), 0);
    EXPECT_EQ(choose(captions[1]), 1);
    EXPECT_EQ(choose(captions[2]), 2);
    EXPECT_EQ(choose({}), -1);
}

TEST(MessageBoxes, InputIsTheTextOrNothing)
{
    WhenOpen<QInputDialog>([](QInputDialog *box) {
        EXPECT_EQ(box->textValue(), u"Home"_s);
        box->setTextValue(u" Index "_s);
        box->accept();
    });
    EXPECT_EQ(InputBox(u"Type:"_s, u"Home"_s), u" Index "_s);
    WhenOpen<QInputDialog>([](QInputDialog *box) { box->reject(); });
    EXPECT_EQ(InputBox(u"Type:"_s, u"Home"_s), QString());
}

TEST(MessageBoxes, FiltersOfFileDialogs)
{
    const std::pair<QString, QStringList> cases[] = {
        {u"RTF files|*.rtf|All files|*.*"_s, {u"RTF files (*.rtf)"_s, u"All files (*)"_s}},
        {u"HTML file (*.html;*.htm)|*.html;*.htm"_s,
         {u"HTML file (*.html;*.htm) (*.html *.htm)"_s}},
        {u"Perl (*.pl)|*.pl||XML Document (*.xml)|*.xml|CGI (*.cgi)|*.cgi"_s,
         {u"Perl (*.pl) (*.pl)"_s, u"XML Document (*.xml) (*.xml)"_s, u"CGI (*.cgi) (*.cgi)"_s}},
        {u"||Web pages|*.html;*.htm;*.asp;|||"_s, {u"Web pages (*.html *.htm *.asp)"_s}},
        {u"Picture files|*.ico;*.bmp*.wmf"_s, {u"Picture files (*.ico *.bmp*.wmf)"_s}},
    };
    for (const auto &[filter, expected] : cases)
        EXPECT_EQ(NameFiltersOf(filter), expected);
}

TEST(MessageBoxes, CaptionsOfFiltersAreShownOnce)
{
    WhenOpen<QFileDialog>([](QFileDialog *box) {
        const auto *types = box->findChild<QComboBox *>(u"fileTypeCombo"_s);
        ASSERT_NE(types, nullptr);
        EXPECT_EQ(types->itemText(0), u"HTML file (*.html;*.htm)"_s);
        EXPECT_EQ(types->itemText(1), u"All"_s);
        EXPECT_EQ(types->currentIndex(), 1);
        box->reject();
    });
    OpenFileName({.filter = u"HTML file (*.html;*.htm)|*.html|All|*.*"_s, .filterIndex = 2});
}

TEST(MessageBoxes, SavingAddsTheSuffixAndAsksBeforeOverwriting)
{
    const QTemporaryDir folder;
    QFile existing(folder.filePath(u"there.html"_s));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    const FileDialog dialog{.title = u"Save"_s,
                            .filter = u"All|*.*"_s,
                            .name = folder.filePath(u"a"_s),
                            .defaultSuffix = u"html"_s};

    WhenOpen<QFileDialog>([](QFileDialog *box) {
        EXPECT_EQ(box->windowTitle(), u"Save"_s);
        static_cast<QDialog *>(box)->accept();
    });
    EXPECT_EQ(SaveFileName(dialog), folder.filePath(u"a.html"_s));

    WhenOpen<QFileDialog>([](QFileDialog *box) {
        auto *name = box->findChild<QLineEdit *>(u"fileNameEdit"_s);
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(name->text(), QString());
        name->setText(u"there"_s);
        WhenOpen<QMessageBox>([box](QMessageBox *question) {
            question->button(QMessageBox::No)->click();
            QTimer::singleShot(0, box, &QDialog::reject);
        });
        static_cast<QDialog *>(box)->accept();
    });
    FileDialog pattern = dialog;
    pattern.name = u"*.html"_s;
    EXPECT_EQ(SaveFileName(pattern), QString());
}

TEST(MessageBoxes, SavingTakesTheSuffixOfTheFilter)
{
    const std::pair<int, QString> cases[]
        = {{0, u"a.html"_s}, {1, u"a.css"_s}, {2, u"a.txt"_s}, {3, u"a.rtf"_s}};
    const QTemporaryDir folder;
    for (const auto &[filter, saved] : cases) {
        WhenOpen<QFileDialog>([filter = filter](QFileDialog *box) {
            auto *types = box->findChild<QComboBox *>(u"fileTypeCombo"_s);
            ASSERT_NE(types, nullptr);
            types->setCurrentIndex(filter);
            emit types->textActivated(types->currentText());
            emit types->activated(filter);
            static_cast<QDialog *>(box)->accept();
        });
        EXPECT_EQ(SaveFileName({.title = u"Save"_s,
                                .filter = u"All Files (*.*)|*.*|Stylesheet (*.css)|*.css|"
                                          "Text file (*.txt;*.asc)|*.txt;*.asc|RTF files|*.rtf"_s,
                                .name = folder.filePath(u"a"_s),
                                .defaultSuffix = u"html"_s}),
                  folder.filePath(saved));
    }
}

TEST(MessageBoxes, AScriptAnswersInPlaceOfTheUser)
{
    Scripted().msgBox = [](const QString &, Buttons, Icon) { return Answer::No; };
    Scripted().chooseBox
        = [](const QString &, const QStringList &captions) { return int(captions.size()); };
    Scripted().inputBox = [](const QString &, const QString &proposal) { return proposal + u'!'; };
    Scripted().openFileName = [](const FileDialog &dialog) { return dialog.title; };
    Scripted().saveFileName = [](const FileDialog &dialog) { return dialog.name; };
    EXPECT_EQ(MsgBox(u"x"_s, Buttons::YesNo, Icon::None, Answer::Yes), Answer::No);
    EXPECT_EQ(ChooseBox(u"x"_s, {u"a"_s, u"b"_s}, Icon::None), 2);
    EXPECT_EQ(InputBox(u"x"_s, u"a"_s), u"a!"_s);
    EXPECT_EQ(OpenFileName({.title = u"t"_s, .filter = {}, .name = u"n"_s, .defaultSuffix = {}}),
              u"t"_s);
    EXPECT_EQ(SaveFileName({.title = u"t"_s, .filter = {}, .name = u"n"_s, .defaultSuffix = {}}),
              u"n"_s);
    Scripted() = {};
}
