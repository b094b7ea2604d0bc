#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace brenix {

class ColourButton;

/// Rows of controls on a page, each bound to a field of a plain struct: a caption, its control, and
/// room for a button beside it; a caption as long as a sentence stands above its control. Every
/// function adds a row, names its control, shows the field's value, and gives the control back for
/// whoever wants to do more with it. The fields must live as long as the form.
class Form
{
public:
    explicit Form(QWidget *page);

    QLineEdit *Text(const char16_t *name, const QString &caption, QString &field);
    QCheckBox *Check(const char16_t *name, const QString &caption, bool &field);
    /// One of the items.
    QComboBox *Choice(const char16_t *name,
                      const QString &caption,
                      const QStringList &items,
                      QString &field);
    /// An item or any other text; completes what is typed from the items.
    QComboBox *Combo(const char16_t *name,
                     const QString &caption,
                     const QStringList &items,
                     QString &field);
    QSpinBox *Number(const char16_t *name, const QString &caption, int least, int most, int &field);
    /// A list of its own row; the field takes the chosen item, and stays when none is.
    QListWidget *List(const char16_t *name,
                      const QString &caption,
                      const QStringList &items,
                      QString &field);
    /// A list of its own row to be edited as text, an item a line; empty lines at its end are
    /// dropped.
    QPlainTextEdit *Lines(const char16_t *name, const QString &caption, QStringList &field);
    /// A colour in blue-green-red order.
    ColourButton *Colour(const char16_t *name, const QString &caption, quint32 &field);
    struct Option
    {
        const char16_t *name;
        QString caption;
        int value;
    };
    /// Buttons of which one is on; the field has the value of that one.
    void Options(const QList<Option> &options, int &field);
    /// A row of its own.
    QPushButton *Button(const char16_t *name,
                        const QString &caption,
                        std::function<void()> clicked);
    /// Beside the control of the last row, behind the buttons that it has there.
    QPushButton *ButtonBeside(const char16_t *name,
                              const QString &caption,
                              std::function<void()> clicked);
    /// A paragraph over the whole width.
    QLabel *Note(const QString &text);
    /// Any other control over the whole width.
    void Add(QWidget *control, int stretch = 0);
    /// The rows keep to the top when the page is higher, unless one of them takes the room.
    void AddStretch();

    /// Shows the fields' values again, and takes the controls' values into the fields.
    void Load() const;
    void Store() const;

private:
    template <typename Control>
    Control *AddRow(const char16_t *name, const QString &caption, Control *control);
    template <typename Control>
    Control *AddBelow(const char16_t *name, const QString &caption, Control *control);
    void Bind(std::function<void()> load, std::function<void()> store);
    QPushButton *NewButton(const char16_t *name,
                           const QString &caption,
                           std::function<void()> clicked);

    struct Binding
    {
        std::function<void()> load;
        std::function<void()> store;
    };
    QWidget *m_page;
    QGridLayout *m_grid;
    std::vector<Binding> m_bindings;
};

/// A modal dialog that is a form and a row of buttons. OK takes the controls' values into the
/// fields and then runs `Accepted`, which may refuse; Cancel leaves the fields as they were. No
/// dialog knows the main window.
class FormDialog : public QDialog
{
public:
    FormDialog(const char16_t *name, const QString &title, QWidget *parent = nullptr);

    void accept() override;

protected:
    Form &Rows() { return m_form; }
    /// The button row, to be made last. An empty name leaves a button out; `help` is what the help
    /// button does.
    struct ButtonNames
    {
        const char16_t *ok;
        const char16_t *cancel;
        const char16_t *help = nullptr;
    };
    void AddButtons(const ButtonNames &names, std::function<void()> help = {});
    /// What OK does with the fields; false keeps the dialog open.
    virtual bool Accepted() { return true; }

private:
    QWidget *m_page;
    Form m_form;
};

} // namespace brenix
