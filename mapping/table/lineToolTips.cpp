#include "lineToolTips.h"

#include <core/text/PString.h>

namespace {

/// The rows of a message, each followed by a line break; the first blank of a row is kept from
/// being swallowed.
QString htmlRows(const QString &message)
{
    QString html;
    for (QString row : message.toHtmlEscaped().split(u'\n', Qt::SkipEmptyParts)) {
        while (row.startsWith(u' '))
            row.replace(0, 1, QStringLiteral("&nbsp;"));
        html += row + QStringLiteral("<br />");
    }
    return html;
}

QString bold(const QString &text)
{
    return QStringLiteral("<b>") + text + QStringLiteral("</b>");
}

} // namespace

QString conflictToolTip(const QString &text)
{
    const QString heading = PString::translate(
        "Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden",
        "VelkLinkDbGui");
    return bold(heading) + QStringLiteral("<br />") + text;
}

QString proposalToolTip(const QStringList &messages)
{
    QString html = bold(
        PString::translate("Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                           "oder korrigiert werden",
                           "VelkLinkDbGui"));
    if (!messages.isEmpty())
        html += QStringLiteral("<br />");
    for (const QString &message : messages)
        html += htmlRows(message);
    return html;
}
