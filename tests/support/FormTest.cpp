#include "support/ColourButton.h"
#include "support/WizardDialog.h"
#include "tests/support/Input.h"
#include "tests/support/PrintQt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSpinBox>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Fields
{
    QString text = u"a"_s;
    bool isTicked = true;
    QString choice = u"two"_s;
    QString combo = u"own"_s;
    int number = 3;
    QString item = u"one"_s;
    QString longText = u"a\r\n\r\n"_s;
    QStringList lines = {u"a"_s, {}, u"b"_s};
    quint32 colour = 0x0000FF;
    int option = 2;

    bool operator==(const Fields &) const = default;
};

/// One row of each kind, on the page and in forms within it.
class FormRows : public testing::Test
{
protected:
    FormRows()
    {
        const QStringList items{u"one"_s, u"two"_s};
        form.Text(u"Text1", u"&Text:"_s, fields.text);
        form.Check(u"Check1", u"&Check"_s, fields.isTicked);
        form.Choice(u"Combo1", u"Choice"_s, items, fields.choice);
        Form &group = form.Group(u"Frame1", u"Group"_s);
        group.Combo(u"Combo2", u"Combo"_s, items, fields.combo);
        group.Number(u"Number1", u"Number"_s, 0, 9, fields.number);
        group.Options({{u"Option1", u"1"_s, 1}, {u"Option2", u"2"_s, 2}}, fields.option);
        const QList<Form *> columns = form.Columns({1, 2});
        columns[0]->List(u"List1", u"List"_s, items, fields.item);
        columns[1]->LongText(u"Text2", u"Long"_s, fields.longText);
        columns[1]->Lines(u"Text3", u"Lines"_s, fields.lines);
        columns[1]->Colour(u"Color1", u"Colour"_s, fields.colour);
    }
    template <typename Control> Control &Find(const QString &name)
    {
        return *page.findChild<Control *>(name);
    }

    Fields fields;
    QWidget page;
    Form form{&page};
};

TEST_F(FormRows, ShowAndTakeTheirFields)
{
    form.Store();
    EXPECT_EQ(fields, Fields());

    Find<QLineEdit>(u"Text1"_s).setText(u"b"_s);
    Find<QCheckBox>(u"Check1"_s).setChecked(false);
    Find<QComboBox>(u"Combo1"_s).setCurrentText(u"one"_s);
    Find<QComboBox>(u"Combo2"_s).setEditText(u"other"_s);
    Find<QSpinBox>(u"Number1"_s).setValue(9);
    Find<QListWidget>(u"List1"_s).setCurrentRow(1);
    Find<QPlainTextEdit>(u"Text2"_s).setPlainText(u"\u00A0\nx"_s);
    Find<QPlainTextEdit>(u"Text3"_s).setPlainText(u"c\n\n"_s);
    Find<ColourButton>(u"Color1"_s).SetColour(0xFF0000);
    Find<QRadioButton>(u"Option1"_s).setChecked(true);
    EXPECT_EQ(fields, Fields()) << "a field changes when it is asked for";
    form.Store();
    const Fields changed{.text = u"b"_s,
                         .isTicked = false,
                         .choice = u"one"_s,
                         .combo = u"other"_s,
                         .number = 9,
                         .item = u"two"_s,
                         .longText = u"\u00A0\r\nx"_s,
                         .lines = {u"c"_s},
                         .colour = 0xFF0000,
                         .option = 1};
    EXPECT_EQ(fields, changed);

    fields = {};
    form.Load();
    form.Store();
    EXPECT_EQ(fields, Fields());

    fields.choice = u"three"_s;
    form.Load();
    form.Store();
    EXPECT_EQ(fields.choice, u"three"_s) << "no value is lost because it is not offered";
}

TEST_F(FormRows, TellOfChangesWithTheFieldsUpToDate)
{
    QStringList told;
    form.WhenChanged([&] { told += fields.text + QString::number(fields.number); });
    Find<QLineEdit>(u"Text1"_s).setText(u"b"_s);
    Find<QSpinBox>(u"Number1"_s).setValue(5);
    EXPECT_EQ(told, QStringList({u"b3"_s, u"b5"_s}));
    fields = {};
    form.Load();
    EXPECT_EQ(told.size(), 2) << "what the program shows is no change";
}

TEST_F(FormRows, HaveCaptionsAndButtons)
{
    EXPECT_EQ(Find<QLineEdit>(u"Text1"_s).accessibleName(), u"Text"_s);
    QCheckBox *check = form.Check(u"Check9", u"Check"_s, fields.isTicked);
    QPushButton *beside = form.ButtonBeside(u"Command9", u"Beside"_s, [] {});
    form.ButtonBeside(u"Command8", u"Another"_s, [] {});
    QLineEdit *text = form.Text(u"Text9", u"Last"_s, fields.text);
    page.resize(page.sizeHint());
    page.layout()->activate();
    EXPECT_GE(beside->x(), check->geometry().right()) << "beside a row that had the whole width";
    QString answer;
    QPushButton *button = form.ChooserBeside(u"Command1", u"..."_s, [&](const QString &now) {
        return answer.isEmpty() ? answer : now + answer;
    });
    button->click();
    EXPECT_EQ(text->text(), u"a"_s) << "nothing was chosen";
    answer = u"b"_s;
    button->click();
    EXPECT_EQ(text->text(), u"ab"_s);
}

class TwoSteps : public WizardDialog
{
public:
    TwoSteps()
        : WizardDialog(u"Wizard", u"Wizard"_s, {.title = u"Label1", .hint = u"Label2"})
    {
        AddStep(u"Wiz1", u"First"_s, u"Type a name"_s).Text(u"Text1", u"&Name:"_s, name);
        AddStep(u"Wiz2", u"Second"_s, u"Finish"_s).Check(u"Check1", u"&Sure"_s, isSure);
        AddButtons(
            {.back = u"Command2", .next = u"Command1", .cancel = u"Command3", .help = u"Command4"},
            [this] { log += u"help"_s; });
    }
    void Allow(bool allowed) { AllowNext(allowed); }

    QString name;
    bool isSure = false;
    QStringList log;

protected:
    void Enter(int step) override { log += name + QString::number(step); }
    bool Accepted() override
    {
        log += u"accepted"_s;
        return isSure;
    }
};

TEST(WizardDialog, LeadsThroughItsStepsByKeyboard)
{
    TwoSteps wizard;
    wizard.show();
    const auto button = [&](const QString &name) { return wizard.findChild<QPushButton *>(name); };
    QPushButton &next = *button(u"Command1"_s);
    auto &title = *wizard.findChild<QLabel *>(u"Label1"_s);
    auto &text = *wizard.findChild<QLineEdit *>(u"Text1"_s);
    EXPECT_FALSE(button(u"Command2"_s)->isEnabled());
    Type(text, u"x"_s);
    wizard.Allow(false);
    Press(text, Qt::Key_Return);
    EXPECT_EQ(title.text(), u"First"_s) << "not allowed";
    wizard.Allow(true);
    Press(text, Qt::Key_Return);
    EXPECT_EQ(title.text() + next.text(), u"Second&Finish"_s);
    button(u"Command2"_s)->click();
    EXPECT_EQ(title.text() + next.text(), u"First&Next"_s);
    EXPECT_FALSE(button(u"Command2"_s)->isEnabled());
    next.click();
    next.click();
    EXPECT_TRUE(wizard.isVisible()) << "refused";
    wizard.findChild<QCheckBox *>(u"Check1"_s)->setChecked(true);
    button(u"Command4"_s)->click();
    emit wizard.findChild<QShortcut *>()->activated(); // F1
    next.click();
    EXPECT_FALSE(wizard.isVisible());
    EXPECT_EQ(wizard.log.join(u' '), u"x1 x1 accepted help help accepted"_s);
}

} // namespace
