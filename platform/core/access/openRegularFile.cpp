#include "openRegularFile.h"

#include "AddressedFiles.h"

#include <core/text/PString.h>

#include <QFile>
#include <QFileInfo>

namespace {

QString refusal(const QString &name)
{
    if (name.contains(QChar(u'\0')))
        return PString::translate("der Name enthält ein NUL-Zeichen", "VelkCore");
    const QFileInfo info(name);
    if (info.isDir())
        return PString::translate("das ist ein Verzeichnis", "VelkCore");
    return info.exists() && !info.isFile()
               ? PString::translate("das ist keine gewöhnliche Datei", "VelkCore")
               : QString();
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
