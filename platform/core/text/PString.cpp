#include "PString.h"

#include <QCoreApplication>

namespace {

bool isNameCharacter(QChar c)
{
    return c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber());
}

} // namespace

PString PString::translate(const char *text, const char *context)
{
    if (!QCoreApplication::instance())
        return QString::fromUtf8(text);
    return QCoreApplication::translate(context, text);
}

PString PString::ResolveEnvirons(const PString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        if (text.at(i) != u'$') {
            result += text.at(i++);
            continue;
        }
        const bool braced = i + 1 < text.size() && text.at(i + 1) == u'{';
        const qsizetype begin = i + (braced ? 2 : 1);
        qsizetype end = begin;
        while (end < text.size() && isNameCharacter(text.at(end)))
            ++end;
        const bool closed = !braced || (end < text.size() && text.at(end) == u'}');
        const QString name = text.mid(begin, end - begin);
        const qsizetype after = end + (braced && closed ? 1 : 0);
        if (!name.isEmpty() && closed && qEnvironmentVariableIsSet(name.toLatin1().constData()))
            result += qEnvironmentVariable(name.toLatin1().constData());
        else
            result += text.mid(i, after - i);
        i = after;
    }
    return result;
}
