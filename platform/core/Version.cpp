#include "Version.h"

QString velkVersion()
{
    return QStringLiteral("0.1.0");
}
