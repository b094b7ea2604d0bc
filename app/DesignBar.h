#pragma once

#include <QToolBar>

class QComboBox;

namespace brenix {

/// The bar with font, font size and block style of the design view.
class DesignBar : public QToolBar
{
    Q_OBJECT

public:
    explicit DesignBar(QWidget *parent = nullptr);

    void FillSizes();
    void FillBlockStyles();

protected:
    /// Reading all fonts takes time: it is done when the bar is first shown.
    void showEvent(QShowEvent *event) override;

private:
    void FillFonts();

    QComboBox *m_font; // Font1
    QComboBox *m_size; // cobSize
    QComboBox *m_format; // cobFormat
};

} // namespace brenix
