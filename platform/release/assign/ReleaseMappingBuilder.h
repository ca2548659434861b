#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QString>
#include <QStringList>

namespace VelkRelease {

/// Makes the release mapping of a catalog between two releases: for each old project the new
/// projects that can take over its lines, in order, and no lines yet. Variables with another name
/// get a variable mapping, projects that were split by the values of a variable a condition for
/// each target, both marked as proposed. Shows a progress that can be
/// cancelled; what goes wrong goes nowhere but into messages().
class VELKRELEASE_EXPORT ReleaseMappingBuilder
{
public:
    struct Input
    {
        /// Directories of the releases.
        QString sourceRoot;
        QString targetRoot;
        /// Directories in them.
        QString sourceCatalog;
        QString targetCatalog;
        /// Dates of the release mapping; empty: the newest "DATE" of a project in the catalog.
        QString sourceDate;
        QString targetDate;
        /// Shown by the progress.
        QString progressText;
    };
    enum class Outcome {
        Complete,
        Incomplete, ///< Some projects could not be read; all others are in the release.
        Unreadable, ///< A catalog or its date is missing, and there is no release.
        Cancelled,  ///< There is no release.
    };
    /// Old projects by what was found for them.
    struct Counts
    {
        int same = 0;    ///< A project with the same path below its catalog.
        int moved = 0;   ///< One of another path.
        int several = 0; ///< Several of other paths.
        int gone = 0;    ///< None.
        int unreadable = 0;
        int proposed = 0; ///< Of these the ones with a proposed condition or variable mapping.
    };

    explicit ReleaseMappingBuilder(const Input &input)
        : m_input(input)
    {
    }

    [[nodiscard]] Outcome build();

    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }
    [[nodiscard]] const Counts &counts() const { return m_counts; }
    /// What could not be read, one text for each thing, in the order of reading.
    [[nodiscard]] const QStringList &messages() const { return m_messages; }

private:
    class Work;

    Input m_input;
    ReleaseMappingC m_release;
    Counts m_counts;
    QStringList m_messages;
};

} // namespace VelkRelease
