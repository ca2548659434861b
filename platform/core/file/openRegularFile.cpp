#include "openRegularFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString refusal(const QString &name)
{
    if (name.contains(QChar(u'\0')))
        return QStringLiteral("the name has a NUL in it");
    const QFileInfo info(name);
    if (info.isDir())
        return QStringLiteral("it is a directory");
    return info.exists() && !info.isFile() ? QStringLiteral("it is no regular file") : QString();
}

} // namespace

bool openRegularFile(QFile &file, QString &problem)
{
    problem = refusal(file.fileName());
    if (!problem.isEmpty())
        return false;
    if (file.open(QIODevice::ReadOnly))
        return true;
    problem = file.errorString();
    return false;
}
