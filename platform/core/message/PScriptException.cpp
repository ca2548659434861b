#include "PScriptException.h"

QString PScriptException::text() const
{
    QString place = file;
    if (line > 0)
        place += (place.isEmpty() ? QString() : QString(u':')) + QString::number(line);
    return place.isEmpty() ? message : place + QStringLiteral(": ") + message;
}
