#include "macros/PressKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPointer>
#include <QWidget>

namespace brenix {

namespace {

    bool Send(QWidget &target, QEvent::Type type, const KeyStroke &stroke)
    {
        QKeyEvent event(type, stroke.key, stroke.modifiers, stroke.text);
        event.setAccepted(type != QEvent::ShortcutOverride);
        QCoreApplication::sendEvent(&target, &event);
        return event.isAccepted();
    }

    bool RunShortcut(const QWidget &window, const QKeySequence &keys)
    {
        for (QAction *action : window.findChildren<QAction *>()) {
            if (action->isEnabled() && action->shortcuts().contains(keys)) {
                action->trigger();
                return true;
            }
        }
        const auto *bar = window.findChild<QMenuBar *>();
        for (QAction *menu : bar ? bar->actions() : QList<QAction *>()) {
            if (menu->isEnabled() && QKeySequence::mnemonic(menu->text()) == keys) {
                const_cast<QMenuBar *>(bar)->setActiveAction(menu);
                return true;
            }
        }
        return false;
    }

    void Press(const KeyStroke &stroke)
    {
        QWidget *popup = QApplication::activePopupWidget();
        const QPointer<QWidget> target = popup ? popup : QApplication::focusWidget();
        if (!target)
            return;
        const QKeySequence keys(QKeyCombination(stroke.modifiers, Qt::Key(stroke.key)));
        if (!popup && !Send(*target, QEvent::ShortcutOverride, stroke) && target
            && RunShortcut(*target->window(), keys))
            return;
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (target)
                Send(*target, type, stroke);
        }
    }

} // namespace

void PressKeys(const QList<KeyStroke> &keys, const std::function<bool()> &goOn)
{
    for (const KeyStroke &stroke : keys) {
        for (int pressed = 0; pressed < stroke.count; ++pressed) {
            Press(stroke);
            if (!goOn())
                return;
        }
    }
}

} // namespace brenix
