#include "insert/PictureViewer.h"

#include "support/Paths.h"
#include "support/Pictures.h"

#include <QBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr double ShareOfScreen = 0.8;
}

PictureViewer::PictureViewer(const QString &path, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"PictureViewer"_s);
    setWindowTitle(FileNameOf(path));
    auto *picture = new QLabel;
    picture->setObjectName(u"Image1"_s);
    picture->setAlignment(Qt::AlignCenter);
    picture->setTextFormat(Qt::PlainText);
    picture->setMargin(8);
    const QPixmap pixels = QPixmap::fromImage(ReadPicture(path));
    if (pixels.isNull())
        picture->setText(u"This picture cannot be shown: "_s + path);
    else
        picture->setPixmap(pixels);
    auto *area = new QScrollArea(this);
    area->setWidget(picture);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    const QSize wanted = picture->sizeHint() + QSize(4, 4);
    resize(wanted.expandedTo({200, 120}).boundedTo(screen()->availableSize() * ShareOfScreen));
}

} // namespace brenix
