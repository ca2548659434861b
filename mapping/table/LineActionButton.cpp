#include "LineActionButton.h"

#include <QShortcutEvent>

LineActionButton::~LineActionButton() = default;

bool LineActionButton::event(QEvent *event)
{
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        click();
        return true;
    }
    return QPushButton::event(event);
}
