#pragma once

#include <QString>
#include <QStringList>

/// HTML for a line in conflict; \a text, HTML too, says what happened.
[[nodiscard]] QString conflictToolTip(const QString &text);
/// HTML for a line that is to be checked, with the messages of its check as plain texts.
[[nodiscard]] QString proposalToolTip(const QStringList &messages);
