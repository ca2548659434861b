#pragma once

#include "ExitStatus.h"

#include <release/review/OpenReason.h>

#include <vector>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

class CatalogRoots;
class CommandLine;
class ReleaseFile;

/// Why the lines of a release are open, for a command that has the options of CatalogRoots.
class OpenReasons
{
public:
    /// Adds --others.
    static void addOptions(CommandLine &line);
    /// What it says, and who took folders over where the mapping file is shared, as an option of
    /// the work.
    [[nodiscard]] static std::function<bool(const QString &)> others(const CommandLine &line,
                                                                     const QString &mappingFile);

    /// Reads the tables of both releases. A result means that this was interrupted; what cannot be
    /// read is told and makes lines unreadable.
    [[nodiscard]] std::optional<ExitStatus> read(const CommandLine &line, const ReleaseFile &file,
                                                 const CatalogRoots &roots, const QString &command,
                                                 QTextStream &err);

    /// In the order of the release.
    [[nodiscard]] const std::vector<VelkRelease::ProjectOpenReasons> &projects() const
    {
        return m_projects;
    }
    [[nodiscard]] VelkRelease::OpenReasonCounts total() const;
    /// Some table could not be read.
    [[nodiscard]] bool hasErrors() const { return m_hasErrors; }

private:
    std::vector<VelkRelease::ProjectOpenReasons> m_projects;
    bool m_hasErrors = false;
};

} // namespace velkmap
