#pragma once

#include "ExitStatus.h"

#include <core/files/EditLock.h>
#include <geomcore/records/MappingFile.h>

#include <optional>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

class CommandLine;

/// Takes the lock of a mapping file. A result means that this failed; the message names the owner.
[[nodiscard]] std::optional<ExitStatus> takeLock(EditLock &lock, const QString &mappingFile,
                                                 QTextStream &err);

/// The one release of a mapping file that a command works on. The file's other releases stay text
/// and pass through unchanged.
class ReleaseFile
{
public:
    /// Adds the options --mapping and --release.
    static void addOptions(CommandLine &line);

    /// Keeps others who work on the file out until this object goes, the editor among them. A
    /// result means that somebody works on it, or that its folder takes no file; the message then
    /// says so.
    [[nodiscard]] std::optional<ExitStatus> lock(const CommandLine &line, QTextStream &err);

    /// Reads the release named by --release, or the last one of the file. A result means that this
    /// failed; the message then names file and cause.
    [[nodiscard]] std::optional<ExitStatus> read(const CommandLine &line, QTextStream &err);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }

    /// Puts the release in place of the one that was read and writes the file, complete or not at
    /// all.
    [[nodiscard]] ExitStatus write(const ReleaseMappingC &release, QTextStream &err);

private:
    EditLock m_lock;
    QString m_path;
    MappingFile m_file;
    ReleaseMappingC m_release;
};

} // namespace velkmap
