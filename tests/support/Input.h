#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

/// Keys and mouse as a widget gets them.

inline void Press(QWidget &widget,
                  int key,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  const QString &text = {})
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// Characters whose key has their own code.
inline void Type(QWidget &widget, const QString &text)
{
    for (const QChar character : text)
        Press(widget, character.toUpper().unicode(), Qt::NoModifier, character);
}

inline void Mouse(QWidget &widget, QEvent::Type type, const QPointF &place)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void Click(QWidget &widget, const QPointF &place)
{
    Mouse(widget, QEvent::MouseButtonPress, place);
    Mouse(widget, QEvent::MouseButtonRelease, place);
}

/// Files that are dragged over the widget and dropped there. True when the drag was taken.
inline bool DropFiles(QWidget &widget, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &drop);
    return enter.isAccepted();
}

/// Drags what is under `from`; both in the widget's parent.
inline void Drag(QWidget &widget, const QPoint &from, const QPoint &to)
{
    Mouse(widget, QEvent::MouseButtonPress, widget.mapFromParent(from));
    Mouse(widget, QEvent::MouseMove, widget.mapFromParent(to));
    Mouse(widget, QEvent::MouseButtonRelease, widget.mapFromParent(to));
}
