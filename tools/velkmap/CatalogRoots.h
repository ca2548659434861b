#pragma once

#include "ExitStatus.h"

#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

class CommandLine;

/// Where a command that only looks at a mapping finds the catalogs of both releases: by the options
/// --source and --target, else below $TORMEVA_DATA.
class CatalogRoots
{
public:
    /// Adds both options, and --allow.
    static void addOptions(CommandLine &line);

    /// Makes the roots those of the process. A result means that a directory is missing.
    [[nodiscard]] std::optional<ExitStatus> take(const CommandLine &line, const QString &command,
                                                 QTextStream &err);

    [[nodiscard]] const QString &source() const { return m_source; }

private:
    QString m_source;
};

} // namespace velkmap
