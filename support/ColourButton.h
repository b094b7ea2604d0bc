#pragma once

#include <QPushButton>

namespace brenix {

/// A button that shows a colour and lets the user choose another.
class ColourButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColourButton(QWidget *parent = nullptr);

    /// In blue-green-red order.
    quint32 Colour() const { return m_colour; }
    void SetColour(quint32 colour);

signals:
    void ColourChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    quint32 m_colour = 0;
};

} // namespace brenix
