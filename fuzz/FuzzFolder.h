#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// A folder of the fuzzing process for what can only be read from a file.
class FuzzFolder
{
public:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_dir.filePath(QLatin1String(name));
    }
    QString write(const char *name, QByteArrayView bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(bytes.data(), bytes.size()) != bytes.size())
            __builtin_trap();
        return file.fileName();
    }

private:
    QTemporaryDir m_dir;
};
