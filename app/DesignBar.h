#pragma once

#include <QToolBar>

class QComboBox;

namespace brenix {

class DesignView;

/// The bar with font, font size and block style of the design view.
class DesignBar : public QToolBar
{
    Q_OBJECT

public:
    explicit DesignBar(QWidget *parent = nullptr);

    /// The boxes act on this view from now on; null for none.
    void SetView(DesignView *view);
    /// Shows font, size and style of the selection.
    void Follow();

private:
    void FillSizes();
    void FillBlockStyles();
    void FillFonts();

    void Link(QComboBox *box, int get, int set);

    DesignView *m_view = nullptr;
    QComboBox *m_font; // Font1
    QComboBox *m_size; // cobSize
    QComboBox *m_format; // cobFormat
};

} // namespace brenix
