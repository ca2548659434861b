#include "FolderPlace.h"

#include <core/files/DurableFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace VelkRelease {

FolderPlace::FolderPlace(const QString &file)
    : SharedPlace(file)
{
}

ShareAnswer FolderPlace::fetch(SharedCopy &copy)
{
    copy = SharedCopy();
    if (!QFileInfo::exists(file())) {
        const QString folder = QFileInfo(file()).path();
        return QFileInfo(folder).isDir() ? ShareAnswer()
                                         : ShareAnswer{ShareAnswer::NotReachable, folder};
    }
    ShareAnswer answer = read(file(), copy.bytes);
    copy.exists = answer.isDone();
    if (copy.exists)
        copy.revision = QString::fromLatin1(FileState::hashOf(copy.bytes));
    return answer;
}

ShareAnswer FolderPlace::publish(const QByteArray &bytes, const QString &expected, const QString &,
                                 QString &revision)
{
    QLockFile lock(lockFile());
    if (ShareAnswer answer = takeLock(lock); !answer.isDone())
        return answer;
    SharedCopy there;
    if (ShareAnswer answer = fetch(there); !answer.isDone())
        return answer;
    if (there.revision != expected)
        return there.exists ? ShareAnswer{ShareAnswer::NewerThere, {}}
                            : ShareAnswer{ShareAnswer::NotReachable, file()};
    QString error;
    if (!DurableFile::write(file(), bytes, &error))
        return {ShareAnswer::NotWritable, error};
    revision = QString::fromLatin1(FileState::hashOf(bytes));
    return {};
}

ShareAnswer FolderPlace::writeNote(const QString &name, const QByteArray &bytes)
{
    const QString note = notesFolder() + u'/' + name;
    if (bytes.isEmpty()) {
        if (!QFileInfo::exists(note) || QFile::remove(note))
            return {};
        return {ShareAnswer::NotWritable, note};
    }
    QString error;
    if (!QDir().mkpath(notesFolder()))
        return {ShareAnswer::NotWritable, notesFolder()};
    if (!DurableFile::write(note, bytes, &error))
        return {ShareAnswer::NotWritable, error};
    return {};
}

} // namespace VelkRelease
