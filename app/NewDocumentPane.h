#pragma once

#include <QTimer>
#include <QWidget>

class QListWidget;

namespace brenix {

/// The pane that pages are started and opened from: document kinds, the open list with the recent
/// files, and the templates.
class NewDocumentPane : public QWidget
{
    Q_OBJECT

public:
    explicit NewDocumentPane(QWidget *parent = nullptr);

    /// Fills the open list anew from the recent files.
    void RebuildOpenList();
    void SetTemplates(const QStringList &names);
    void AddTemplate(const QString &name);
    void RemoveTemplate(const QString &name);
    /// Draws the eye to a list for a moment and gives it the focus.
    void PointToKinds();
    void PointToOpenList();

signals:
    void KindChosen(const QString &kind);
    /// `row` counts from 0; recent files begin at row 3.
    void OpenRowChosen(int row);
    void TemplateChosen(const QString &name);
    void TemplateDeletionAsked(const QString &name);

private:
    QListWidget *AddList(const QString &name, const QString &caption, int stretch);
    void PointTo(QListWidget *list);

    QListWidget *m_kinds; // List2
    QListWidget *m_openList; // List1
    QListWidget *m_templates; // List3
    QTimer m_blink;
};

} // namespace brenix
