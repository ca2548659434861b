#include "openRegularFile.h"

#include "AddressedFiles.h"

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
    const std::shared_ptr<AddressedFiles> addressed = AddressedFiles::installed();
    if (addressed && !addressed->provide(file.fileName(), problem))
        return false;
    problem = refusal(file.fileName());
    if (!problem.isEmpty())
        return false;
    if (file.open(QIODevice::ReadOnly))
        return true;
    problem = file.errorString();
    return false;
}
