#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

/// The keys of the buttons beside the tables, which are commands on lines. Their identifiers:
/// "lineConfirm", "lineRemove", "lineRemoveConfirm", "lineValueRanges", "lineCondition" and
/// "linesConfirmAll".
namespace LineKeys {

/// Gives the button the key of a command, which it is from now on.
void setCommand(QPushButton *button, const QString &command);
/// Sets tool tip and accessible name. A key at the end of the text, in brackets, is the standard
/// one; another that holds stands there instead.
void setToolTip(QPushButton *button, const QString &toolTip);
/// After a change of keys.
void update(QPushButton *button);

} // namespace LineKeys
