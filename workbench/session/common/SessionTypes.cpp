#include "SessionTypes.h"

#include <QCoreApplication>

QString ownerText(const SessionOwner &owner)
{
    QString result = owner.user;
    if (!owner.host.isEmpty()) {
        const QString at = QCoreApplication::translate("SessionOwner", "an");
        result =
            result.isEmpty() ? owner.host : QStringLiteral("%1 %2 %3").arg(result, at, owner.host);
    }
    if (owner.process > 0) {
        const QString number =
            QCoreApplication::translate("SessionOwner", "(Prozess %1)").arg(owner.process);
        result += result.isEmpty() ? number : u' ' + number;
    }
    return result;
}
