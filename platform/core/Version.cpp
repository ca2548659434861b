#include "Version.h"

QString velkVersion()
{
    return QStringLiteral(VELK_VERSION);
}
