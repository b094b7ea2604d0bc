#pragma once

#include <QPixmap>
#include <QWidget>

namespace brenix {

/// A picture as a page shows it for its background: repeated in both directions over white, with
/// some text on it that tells whether words stay legible. Without a picture, a white page.
class TiledPreview : public QWidget
{
public:
    explicit TiledPreview(QWidget *parent = nullptr);

    void SetPicture(const QPixmap &picture);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    bool m_isDark = false;
};

} // namespace brenix
