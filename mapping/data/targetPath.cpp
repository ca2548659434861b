#include "targetPath.h"

QString targetPath(bool local, const QString &storedPath)
{
    if (storedPath.isEmpty())
        return QString();
    if (local)
        return QStringLiteral("$TORMEVA_DATA/23d-libs") +
               (storedPath.startsWith(u'/') ? QString() : QStringLiteral("/")) + storedPath;
    const qsizetype slash = storedPath.indexOf(u'/');
    if (slash < 0)
        return QString();
    return QStringLiteral("svn://%1/trunk/catalog").arg(storedPath.left(slash)) +
           storedPath.mid(slash);
}
