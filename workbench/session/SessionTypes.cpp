#include "SessionTypes.h"

#include <QCoreApplication>

QString SessionOwner::text() const
{
    QString result = user;
    if (!host.isEmpty()) {
        const QString at = QCoreApplication::translate("SessionOwner", "an");
        result = result.isEmpty() ? host : QStringLiteral("%1 %2 %3").arg(result, at, host);
    }
    if (process > 0) {
        const QString number =
            QCoreApplication::translate("SessionOwner", "(Prozess %1)").arg(process);
        result += result.isEmpty() ? number : u' ' + number;
    }
    return result;
}
