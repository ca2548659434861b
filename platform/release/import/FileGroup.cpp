#include "FileGroup.h"

#include <core/files/DurableFile.h>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <vector>

namespace VelkRelease {

namespace {

bool hasContent(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) && file.size() == content.size() &&
           file.readAll() == content;
}

} // namespace

void FileGroup::add(const QString &file, const QByteArray &content)
{
    m_files.append({file, content});
}

bool FileGroup::commit()
{
    QString cause;
    std::vector<std::unique_ptr<QSaveFile>> files; // one that is not committed is discarded
    for (const auto &[name, content] : std::as_const(m_files)) {
        if (hasContent(name, content))
            continue;
        const QString directory = QFileInfo(name).path();
        if (!QDir().mkpath(directory))
            return fail(directory, QStringLiteral("the directory cannot be made"));
        auto &file = files.emplace_back(std::make_unique<QSaveFile>(name));
        if (!DurableFile::open(*file, &cause))
            return fail(name, QStringLiteral("cannot be written: ") + cause);
        if (file->write(content) != content.size())
            return fail(name, QStringLiteral("cannot be written: ") + file->errorString());
        if (!DurableFile::sync(*file, &cause))
            return fail(name, QStringLiteral("cannot be written: ") + cause);
    }
    for (auto &file : files) {
        if (!DurableFile::commit(*file, &cause))
            return fail(file->fileName(), QStringLiteral("cannot be written: ") + cause);
    }
    return true;
}

bool FileGroup::fail(const QString &file, const QString &text)
{
    m_error = {QDir::toNativeSeparators(file), 0, 0, text};
    return false;
}

} // namespace VelkRelease
