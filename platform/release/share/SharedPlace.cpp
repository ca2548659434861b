#include "SharedPlace.h"

#include "FolderPlace.h"
#include "SubversionPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace VelkRelease {

SharedPlace::SharedPlace(const QString &file)
    : m_file(QFileInfo(file).absoluteFilePath())
{
}

SharedPlace::~SharedPlace() = default;

std::unique_ptr<SharedPlace> SharedPlace::at(const QString &file)
{
    if (SubversionPlace::isWorkingCopy(QFileInfo(file).absolutePath()))
        return std::make_unique<SubversionPlace>(file);
    return std::make_unique<FolderPlace>(file);
}

QString SharedPlace::notesFolder() const
{
    return m_file + QStringLiteral(".shared");
}

QList<QByteArray> SharedPlace::notes() const
{
    QList<QByteArray> all;
    const QStringList files = noteFiles(QStringLiteral(".json"));
    for (const QString &file : files) {
        QByteArray bytes;
        if (read(file, bytes).isDone())
            all += bytes;
    }
    return all;
}

QStringList SharedPlace::noteFiles(const QString &ending) const
{
    QStringList files;
    const QFileInfoList found =
        QDir(notesFolder()).entryInfoList({u'*' + ending}, QDir::Files, QDir::Name);
    for (const QFileInfo &info : found)
        files += info.filePath();
    return files;
}

ShareAnswer SharedPlace::read(const QString &file, QByteArray &bytes)
{
    QFile from(file);
    if (!from.open(QIODevice::ReadOnly))
        return {ShareAnswer::NotReachable, file + QStringLiteral(": ") + from.errorString()};
    bytes = from.readAll();
    if (from.error() != QFileDevice::NoError)
        return {ShareAnswer::NotReachable, file + QStringLiteral(": ") + from.errorString()};
    return {};
}

} // namespace VelkRelease
