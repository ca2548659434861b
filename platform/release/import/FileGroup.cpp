#include "FileGroup.h"

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
    std::vector<std::unique_ptr<QSaveFile>> files; // one that is not committed is discarded
    for (const auto &[name, content] : std::as_const(m_files)) {
        if (hasContent(name, content))
            continue;
        const QString directory = QFileInfo(name).path();
        if (!QDir().mkpath(directory))
            return fail(directory, QStringLiteral("the directory cannot be made"));
        auto &file = files.emplace_back(std::make_unique<QSaveFile>(name));
        if (!file->open(QIODevice::WriteOnly) || file->write(content) != content.size() ||
            !file->flush())
            return fail(name, QStringLiteral("cannot be written: ") + file->errorString());
    }
    for (auto &file : files) {
        if (!file->commit())
            return fail(file->fileName(),
                        QStringLiteral("cannot be written: ") + file->errorString());
    }
    return true;
}

bool FileGroup::fail(const QString &file, const QString &text)
{
    m_error = {QDir::toNativeSeparators(file), 0, 0, text};
    return false;
}

} // namespace VelkRelease
