#include "FileContent.h"

#include "OwnFile.h"

#include <core/files/ContentHash.h>

#include <QFile>
#include <QFileInfo>

#include <optional>
#include <vector>

namespace {

/// What is to be known before reading: what changes meanwhile is a change.
FileContent begun(const QString &path)
{
    FileContent content;
    content.state.exists = OwnFile::place(path) != OwnFile::Place::Free;
    if (!content.state.exists)
        return content;
    content.stamp = OwnFile::stamp(path);
    content.state.time = QFileInfo(path).lastModified().toUTC();
    return content;
}

} // namespace

FileContent FileContent::of(const QString &path)
{
    FileContent content = begun(path);
    if (!content.state.exists)
        return content;
    content.identity = OwnFile::identity(path);
    const std::optional<QByteArray> bytes = OwnFile::read(path, &content.error);
    if (!bytes)
        return content;
    if (OwnFile::identity(path) != content.identity)
        content.identity.clear();
    content.bytes = *bytes;
    content.state.size = bytes->size();
    content.state.hash = FileState::hashOf(*bytes);
    return content;
}

FileContent FileContent::withoutBytes(const QString &path, const FileState &known,
                                      const QByteArray &identity)
{
    FileContent content = begun(path);
    QFile file;
    if (!content.state.exists ||
        !OwnFile::open(file, path, QIODevice::ReadOnly | QIODevice::Unbuffered, &content.error))
        return content;
    content.identity = OwnFile::identity(file);
    if (!identity.isEmpty() && content.identity == identity) {
        content.state.size = known.size;
        content.state.hash = known.hash;
        return content;
    }
    std::vector<char> piece(std::size_t(256) * 1024);
    ContentHash hash;
    qint64 size = 0;
    while ((size = file.read(piece.data(), qint64(piece.size()))) > 0) {
        hash.add(QByteArrayView(piece.data(), size));
        content.state.size += size;
    }
    if (file.error() != QFileDevice::NoError)
        content.error = file.errorString();
    else
        content.state.hash = hash.result();
    return content;
}
