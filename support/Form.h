#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
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
class QWidget;

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
    /// One of the items; a value that is none of them, as a tag may have it, is offered last.
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
    /// A text of several lines, whose ends are CR LF in the field.
    QPlainTextEdit *LongText(const char16_t *name, const QString &caption, QString &field);
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
    /// A control of the caller's own, bound to nothing: beside its caption, or below it with what
    /// height there is.
    void Row(const char16_t *name, const QString &caption, QWidget *control);
    void Below(const char16_t *name, const QString &caption, QWidget *control);

    /// A row of its own.
    QPushButton *Button(const char16_t *name,
                        const QString &caption,
                        std::function<void()> clicked);
    /// Beside the control of the last row, behind the buttons that it has there.
    QPushButton *ButtonBeside(const char16_t *name,
                              const QString &caption,
                              std::function<void()> clicked);
    /// Beside a text, or a combo: `choose` gets what stands in it and says what shall, as a file or
    /// a colour that the author picks; an empty answer changes nothing.
    QPushButton *ChooserBeside(const char16_t *name,
                               const QString &caption,
                               std::function<QString(const QString &text)> choose);
    /// A paragraph over the whole width.
    QLabel *Note(const QString &text);
    /// Any other control over the whole width; `stretch` is its share of the height that is left.
    void Add(QWidget *control, int stretch = 0);
    /// The rows keep to the top when the page is higher, unless one of them takes the room.
    void AddStretch();

    /// Forms within this one: it shows and takes their fields with its own, and tells of their
    /// changes. In a frame with a title; side by side, each as wide as its share; on a page of a
    /// stack or of tabs, to which the caller adds it.
    Form &Group(const char16_t *name, const QString &title);
    QList<Form *> Columns(const QList<int> &shares, int stretch = 0);
    Form &Inside(QWidget *page);

    /// Shows the fields' values again, and takes the controls' values into the fields.
    void Load();
    void Store() const;
    /// What to do after every change of a control, with the fields up to date.
    void WhenChanged(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    QPlainTextEdit *AddTextBox(const char16_t *name, const QString &caption);
    template <typename Control, typename Signal>
    void Bind(Control *control,
              Signal changed,
              std::function<void()> load,
              std::function<void()> store);
    void TellChange();
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
    Form *m_parent = nullptr;
    bool m_isLoading = false;
    std::vector<Binding> m_bindings;
    std::vector<std::unique_ptr<Form>> m_inner;
    std::function<void()> m_changed;
    QObject m_context; // no control tells its last changes to a form that is gone
};

} // namespace brenix
