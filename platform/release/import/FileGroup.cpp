#include "FileGroup.h"

#include <core/files/DurableFile.h>
#include <release/text/releaseText.h>

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

QString cannotBeWritten(const QString &cause)
{
    return releaseText("lässt sich nicht schreiben: %1").arg(cause);
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
            return fail(directory, releaseText("das Verzeichnis lässt sich nicht anlegen"));
        auto &file = files.emplace_back(std::make_unique<QSaveFile>(name));
        if (!DurableFile::open(*file, &cause))
            return fail(name, cannotBeWritten(cause));
        if (file->write(content) != content.size())
            return fail(name, cannotBeWritten(file->errorString()));
        if (!DurableFile::sync(*file, &cause))
            return fail(name, cannotBeWritten(cause));
    }
    for (auto &file : files) {
        if (!DurableFile::commit(*file, &cause))
            return fail(file->fileName(), cannotBeWritten(cause));
    }
    return true;
}

bool FileGroup::fail(const QString &file, const QString &text)
{
    m_error = {QDir::toNativeSeparators(file), 0, 0, text};
    return false;
}

} // namespace VelkRelease
