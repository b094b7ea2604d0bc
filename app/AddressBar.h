#pragma once

#include <QToolBar>

class QAction;
class QComboBox;

namespace brenix {

/// The bar for the preview: back, forward, refresh, local or server, the address box, and the
/// screen size.
class AddressBar : public QToolBar
{
    Q_OBJECT

public:
    explicit AddressBar(QWidget *parent = nullptr);

    QString Address() const;
    /// Does not count as typing.
    void SetAddress(const QString &address);
    bool IsLocalMode() const;

signals:
    void Back();
    void Forward();
    void RefreshClicked();
    void AddressEdited(const QString &address);
    void AddressEntered(const QString &address);
    void ModeChanged();
    /// "Fit Screen" or "WIDTHxHEIGHT".
    void ScreenChosen(const QString &screen);

private:
    QAction *m_local;
    QComboBox *m_address; // Combo2
    QComboBox *m_screen; // Combo1
};

} // namespace brenix
