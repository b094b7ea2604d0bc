#include "app/CaretStatus.h"

#include "app/CaretNote.h"
#include "editor/CodeHighlight.h"
#include "support/Pictures.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int PictureSide = 73; // 1100 twips
    constexpr int FrameWidth = 1;
    constexpr int BesideCaret = 31; // 470 twips behind the caret
    constexpr int BelowCaretTop = 20; // 300 twips
    constexpr int LineGap = 2;
    constexpr QSize SwatchSize(56, 22);

    // Of a grey that stands out from light and dark pages, and from any colour within.
    void FrameIt(QFrame *frame)
    {
        frame->setFrameStyle(QFrame::Box | QFrame::Plain);
        frame->setLineWidth(FrameWidth);
        frame->setAutoFillBackground(true);
        frame->setAttribute(Qt::WA_TransparentForMouseEvents);
        frame->setFocusPolicy(Qt::NoFocus);
        QPalette colours = frame->palette();
        colours.setColor(QPalette::WindowText, QColor(0x80, 0x80, 0x80));
        frame->setPalette(colours);
        frame->hide();
    }

    // Shows through where a picture is transparent.
    QBrush Checkered()
    {
        constexpr int Square = 6;
        QPixmap tile(2 * Square, 2 * Square);
        tile.fill(QColor(0xC8, 0xC8, 0xC8));
        QPainter painter(&tile);
        painter.fillRect(0, 0, Square, Square, Qt::white);
        painter.fillRect(Square, Square, Square, Square, Qt::white);
        painter.end();
        return QBrush(tile);
    }

} // namespace

CaretStatus::CaretStatus(CodeHighlight &source, QWidget &window)
    : m_source(source)
    , m_window(window)
{
    source.installEventFilter(this);
    source.viewport()->installEventFilter(this);
    // The vertical bar is silent when the box scrolls to its caret.
    connect(&source, &CodeHighlight::updateRequest, this, &CaretStatus::Place);
    connect(source.horizontalScrollBar(), &QScrollBar::valueChanged, this, &CaretStatus::Place);
}

// When there is first something to show.
void CaretStatus::Build()
{
    m_swatch = new QLabel(&m_window);
    m_pictureFrame = new QFrame(&m_window);
    m_picture = new QLabel(m_pictureFrame);
    m_noteFrame = new QFrame(&m_window);
    m_note = new QLabel(m_noteFrame);
    m_swatch->setObjectName(u"Label1"_s);
    m_swatch->setAccessibleName(u"Selected colour"_s);
    m_pictureFrame->setObjectName(u"Picture3"_s);
    m_pictureFrame->setAccessibleName(u"Selected picture"_s);
    m_noteFrame->setObjectName(u"Picture2"_s);
    m_note->setObjectName(u"Letters"_s);
    for (QFrame *frame : {static_cast<QFrame *>(m_swatch), m_pictureFrame, m_noteFrame})
        FrameIt(frame);
    m_swatch->resize(SwatchSize);

    m_picture->setObjectName(u"Image1"_s);
    m_picture->setScaledContents(true);
    QPalette behind = m_pictureFrame->palette();
    behind.setBrush(QPalette::Window, Checkered());
    m_pictureFrame->setPalette(behind);

    m_note->setTextFormat(Qt::PlainText);
    m_note->setForegroundRole(QPalette::ToolTipText);
    m_noteFrame->setBackgroundRole(QPalette::ToolTipBase);
    auto *layout = new QHBoxLayout(m_noteFrame);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(m_note);
}

void CaretStatus::Follow(const QString &folder)
{
    const int length = m_source.SelLength();
    const CaretNote note
        = length > 0 && length <= LongestNoted ? NoteOf(m_source.SelText()) : CaretNote();
    const bool isNoted = note.colour || !note.picture.isEmpty() || !note.entity.isEmpty();
    if (isNoted && !m_swatch)
        Build();
    QWidget *const before = std::exchange(m_current, nullptr);
    if (note.colour) {
        QPalette colours = m_swatch->palette();
        colours.setColor(QPalette::Window, QColor::fromRgb(*note.colour));
        m_swatch->setPalette(colours);
        m_current = m_swatch;
    } else if (!note.picture.isEmpty() && LoadPicture(PictureFile(folder, note.picture))) {
        m_current = m_pictureFrame;
    } else if (!note.entity.isEmpty()) {
        m_note->setText(note.entity);
        m_noteFrame->adjustSize();
        m_current = m_noteFrame;
    }
    if (before && before != m_current)
        before->hide();
    Place();
}

// False when there is none, or none that can be shown.
bool CaretStatus::LoadPicture(const QString &path)
{
    if (path.isEmpty())
        return false;
    const QImage image = ReadPreview(path, qCeil(PictureSide * m_window.devicePixelRatioF()));
    if (image.isNull())
        return false;
    m_picture->setPixmap(QPixmap::fromImage(image));
    m_picture->setGeometry(
        QRect(QPoint(FrameWidth, FrameWidth), PreviewSize(image.size(), PictureSide)));
    m_pictureFrame->resize(m_picture->size() + 2 * QSize(FrameWidth, FrameWidth));
    return true;
}

void CaretStatus::Place()
{
    if (!m_current)
        return;
    const QRect caret = m_source.cursorRect();
    const QWidget *viewport = m_source.viewport();
    const bool inSight = m_source.isVisibleTo(&m_window) && viewport->rect().intersects(caret);
    if (inSight) {
        const QSize size = m_current->size();
        const QPoint place = viewport->mapTo(&m_window, caret.topLeft());
        const int left = place.x() + BesideCaret - (m_current == m_noteFrame ? 0 : size.width());
        const int below = place.y() + std::max(BelowCaretTop, caret.height() + LineGap);
        const int bottom = m_source.geometry().bottom() + 1;
        const int top
            = below + size.height() <= bottom ? below : place.y() - size.height() - LineGap;
        m_current->move(std::clamp(left, 0, std::max(0, m_window.width() - size.width())),
                        std::max(0, top));
        m_current->raise();
    }
    m_current->setVisible(inSight);
}

bool CaretStatus::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        Place();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace brenix
