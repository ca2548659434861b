#include "FileStamps.h"

#include <QDateTime>
#include <QFileInfo>

namespace Mapper {

FileStamps::FileStamps(const QStringList &nativePaths)
    : m_paths(nativePaths)
{
    for (const QString &path : nativePaths) {
        const QFileInfo file(path);
        Stamp stamp;
        if (file.exists()) {
            stamp.time = file.lastModified().toMSecsSinceEpoch();
            stamp.size = file.size();
        }
        m_stamps.push_back(stamp);
    }
}

void FileStamps::distrustSince(qint64 moment)
{
    for (Stamp &stamp : m_stamps) {
        if (stamp.time > moment)
            stamp.size = -2;
    }
}

} // namespace Mapper
