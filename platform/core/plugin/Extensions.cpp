#include "Extensions.h"

#include <core/text/PString.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace {

using VersionOf = const char *(*)();
using Register = void (*)();

QStringList &loadedFiles()
{
    static QStringList files;
    return files;
}

/// Empty if the library is loaded and has registered itself.
QString loadOne(const QString &file)
{
    if (loadedFiles().contains(file))
        return {};
    QLibrary library(file);
    if (!library.load())
        return library.errorString();
    const auto version = VersionOf(library.resolve("velkExtensionVersion"));
    const auto enter = Register(library.resolve("velkExtensionRegister"));
    if (!version || !enter)
        return PString::translate("das ist keine Erweiterung: VELK_EXTENSION fehlt", "VelkCore");
    if (qstrcmp(version(), VELK_API_VERSION) != 0) {
        return PString::translate("die Erweiterung ist für Version %1 gemacht, dies ist %2; "
                                  "übersetzen Sie sie neu",
                                  "VelkCore")
            .arg(QString::fromUtf8(version()), QStringLiteral(VELK_API_VERSION));
    }
    enter();
    loadedFiles().append(file);
    return {};
}

} // namespace

QStringList Extensions::folders()
{
    QStringList candidates{QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' +
                                           QStringLiteral(VELK_MODULE_FOLDER "/extensions"))};
    candidates +=
        qEnvironmentVariable("VELK_EXTENSIONS").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    QStringList existing;
    for (const QString &candidate : std::as_const(candidates)) {
        if (QDir(candidate).exists())
            existing.append(QDir(candidate).absolutePath());
    }
    existing.removeDuplicates();
    return existing;
}

QStringList Extensions::load(const QStringList &folders)
{
    QStringList faults;
    for (const QString &folder : folders) {
        const QDir dir(folder);
        const QStringList names = dir.entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            if (!QLibrary::isLibrary(name))
                continue;
            const QString file = dir.absoluteFilePath(name);
            const QString fault = loadOne(file);
            if (!fault.isEmpty())
                faults.append(QDir::toNativeSeparators(file) + QStringLiteral(": ") + fault);
        }
    }
    return faults;
}

QStringList Extensions::loaded()
{
    return loadedFiles();
}
