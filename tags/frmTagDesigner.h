#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace brenix {

class DocumentModel;

/// "Tag Designer": a wizard that picks a tag and then collects attributes for it, each with a way
/// to give its value that fits it.
class frmTagDesigner : public QDialog
{
    Q_OBJECT

public:
    explicit frmTagDesigner(DocumentModel &page, QWidget *parent = nullptr);

private:
    QWidget *TagStep();
    QWidget *AttributeStep();
    QWidget *ValuePanels();
    QWidget *DropPanel();
    QWidget *ColourPanel();
    QWidget *HyperPanel();
    QWidget *NoOptionPanel();
    QWidget *DefaultPanel();
    QPushButton *InsertButton(const QString &name, std::function<QString()> value);
    void BuildButtons();
    void ShowStep(int step);
    void Forward();
    void ShowPanel();
    void ChooseTarget();
    QString Attribute() const;

    DocumentModel &m_page;
    QLabel *m_title; // Label1
    QLabel *m_hint; // Label4
    QStackedWidget *m_steps;
    QLineEdit *m_find = nullptr; // Text2
    QListWidget *m_tags = nullptr; // List1
    QListWidget *m_attributes = nullptr; // List2
    QLineEdit *m_code = nullptr; // Code
    QLabel *m_options = nullptr; // Label7
    QStackedWidget *m_panels = nullptr;
    QListWidget *m_drop = nullptr; // FontList
    QLineEdit *m_colour = nullptr; // Text3
    QLineEdit *m_hyper = nullptr; // Text4
    QLineEdit *m_default = nullptr; // Text1
    QPushButton *m_forward = nullptr; // Command1
    QPushButton *m_back = nullptr; // Command2
};

} // namespace brenix
