#pragma once

#include <QWidget>

class QListWidget;

namespace brenix {

/// The open documents: a click or Enter brings one to the front.
class ActiveDocumentsPane : public QWidget
{
    Q_OBJECT

public:
    explicit ActiveDocumentsPane(QWidget *parent = nullptr);

    /// Paths or names in the order of the tabs; `active` counts from 0, -1 for none.
    void ShowDocuments(const QStringList &captions, int active);

signals:
    /// `row` counts from 0.
    void Chosen(int row);

private:
    QListWidget *m_documents; // List9
};

} // namespace brenix
