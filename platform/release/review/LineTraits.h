#pragma once

#include "LineFilter.h"
#include "OpenReason.h"

#include <geomcore/records/ReleaseMappingC.h>
#include <release/history/CarriedHistory.h>

#include <QHash>

#include <optional>
#include <vector>

namespace VelkRelease {

class DifferencePatterns;

/// What a filter may ask for of every line of a release. States follow the mappings; reasons and
/// differences are those of the moment when they were computed, and hold for a line as long as it
/// is open. One thread at a time.
class VELKRELEASE_EXPORT LineTraits
{
public:
    /// Nothing is known but the states.
    explicit LineTraits(const ReleaseMappingC &release = {});

    /// Reads the tables of all projects with the threads of WorkerPool, and the journals of the
    /// mapping file; without its name nobody is known to have decided anything. Nothing if the work
    /// was cancelled. \a errors: what could not be read.
    [[nodiscard]] static std::optional<LineTraits> compute(const ReleaseMappingC &release,
                                                           const OpenReasonOptions &options,
                                                           const QString &mappingFile,
                                                           QStringList *errors);
    /// What was taken over from former mappings; nothing at first.
    void setCarried(const CarriedLines &carried);
    /// A project's mapping is another one now; \a author decided on the lines that differ. Costs
    /// what the project has.
    void setMapping(int project, const PrjMappingC &mapping, const QString &author);

    /// Lines of a project that the filter accepts, ascending.
    [[nodiscard]] std::vector<int> linesOf(int project, const LineFilter &filter) const;
    [[nodiscard]] int count(int project, const LineFilter &filter) const;
    [[nodiscard]] bool accepts(int project, int line, const LineFilter &filter) const;
    /// How many lines each value has among those that the filter's other choices accept. An empty
    /// text: lines without a value.
    [[nodiscard]] QHash<QString, int> counts(LineTrait trait, const LineFilter &filter) const;

    [[nodiscard]] int projectCount() const { return int(m_projects.size()); }

private:
    /// Numbers of lists of values, one for each trait.
    using Sets = std::array<quint16, LineTraitCount>;
    struct Row
    {
        int line = -1;
        Sets sets{};
    };
    struct Project
    {
        PrjMappingC mapping;
        std::vector<Row> rows; ///< ascending
    };
    class Sieve;

    void readStates(Project &project);
    void addReasons(Project &project, const ProjectOpenReasons &reasons);
    void addDifferences(const DifferencePatterns &patterns);
    void addAuthors(const ReleaseMappingC &release, const QString &mappingFile,
                    QStringList *errors);
    void readOrigins(Project &project);
    [[nodiscard]] quint16 setOf(LineTrait trait, const QStringList &values);
    [[nodiscard]] static Row *find(Project &project, int line);
    [[nodiscard]] Sets shown(const Row &row) const;

    std::vector<Project> m_projects;
    std::array<std::vector<QStringList>, LineTraitCount> m_sets; ///< the first is the empty one
    std::array<QHash<QStringList, quint16>, LineTraitCount> m_numbers;
    std::array<quint16, LineStateCount> m_states{}; ///< their numbers
    CarriedLines m_carried;
};

} // namespace VelkRelease
