#include "LineKeys.h"

#include <gui/application/PCommandKeys.h>

#include <QPushButton>

namespace {

constexpr const char *commandProperty = "command";
constexpr const char *toolTipProperty = "standardToolTip";

using Place = PCommandKeys::Place;

const DeclaredCommands
    lineKeyCommands({{"lineConfirm", Place::Window, {Qt::Key_V}},
                     {"lineRemove", Place::Window, {Qt::Key_X}},
                     {"lineRemoveConfirm", Place::Window, {Qt::CTRL | Qt::Key_X}},
                     {"lineValueRanges", Place::Window, {}},
                     {"lineCondition", Place::Window, {}},
                     {"linesConfirmAll", Place::Window, {}}});

QString commandOf(const QPushButton *button)
{
    return button->property(commandProperty).toString();
}

QString withKey(const QString &toolTip, const QString &command)
{
    const PCommandKeys &keys = PCommandKeys::instance();
    if (command.isEmpty() || keys.isStandard(command))
        return toolTip;
    const qsizetype bracket = toolTip.endsWith(u')') ? toolTip.lastIndexOf(u'(') : -1;
    const QString text = bracket < 0 ? toolTip : toolTip.left(bracket).trimmed();
    const QString key = keys.keyText(command);
    return key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key);
}

} // namespace

void LineKeys::setCommand(QPushButton *button, const QString &command)
{
    button->setProperty(commandProperty, command);
    setToolTip(button, button->toolTip());
    update(button);
}

void LineKeys::setToolTip(QPushButton *button, const QString &toolTip)
{
    button->setProperty(toolTipProperty, toolTip);
    const QString shown = withKey(toolTip, commandOf(button));
    button->setToolTip(shown);
    button->setAccessibleName(shown);
}

void LineKeys::update(QPushButton *button)
{
    button->setShortcut(PCommandKeys::instance().key(commandOf(button)));
    setToolTip(button, button->property(toolTipProperty).toString());
}
