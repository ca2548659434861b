#pragma once

#include <core/files/DurableFile.h>

#include <QByteArray>
#include <QString>

/// A file that was read once, with all that is to be known of it.
struct FileContent
{
    FileState state;
    QByteArray stamp;    ///< as it began to be read
    QByteArray identity; ///< while it was read; empty if it changed meanwhile or just before
    QByteArray bytes;
    QString error; ///< German; empty if it was read or is not there

    [[nodiscard]] static FileContent of(const QString &path);
    /// The same without the bytes, which costs a fraction of that; without reading, if the file
    /// still is the one that was read or written as \a known with that identity.
    [[nodiscard]] static FileContent withoutBytes(const QString &path, const FileState &known,
                                                  const QByteArray &identity);
};
