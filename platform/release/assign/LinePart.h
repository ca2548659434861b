#pragma once

#include "LineRun.h"

#include <geomcore/records/CatalogMappingC.h>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace VelkRelease {

/// Some lines of a project's table with a mapper of their own, so that several parts can be worked
/// on at once.
class LinePart
{
public:
    /// A catalog with this mapping alone, in a release that is else like \a like.
    [[nodiscard]] static CatalogMappingC catalogOf(const PrjMappingC &mapping,
                                                   const ReleaseMappingC &like);
    /// To be made on the thread that owns \a table, which outlives it, as does \a cancelled: null
    /// or what ends the work on a line too, whose result is of no use then.
    LinePart(const QString &sourcePath, const QString &sourceVersion,
             const CatalogMappingC &catalog, const VKTab::Content &table,
             const QStringList &conditionVariables, bool force,
             const std::atomic<bool> *cancelled = nullptr);

    /// Whether the catalog has the project's mapping.
    [[nodiscard]] bool isUsable() const { return m_usable; }
    void assign(const VKTab::LineId &line) { m_run.assign(line); }
    [[nodiscard]] PrjMapperC &mapper() { return m_mapper; }
    /// The project's mapping; what other parts assigned is not in it.
    [[nodiscard]] PrjMappingC mapping() { return m_mapper.getMappingNode().getMapping(); }

private:
    PrjMapperC m_mapper;
    bool m_usable;
    LineRun m_run;
};

/// Assigns \a lines with the threads of WorkerPool. \a first is the first part; \a make makes the
/// others, on the calling thread. Nothing if \a cancelled became true.
[[nodiscard]] std::optional<PrjMappingC>
assignInParts(LinePart &first, const std::function<std::unique_ptr<LinePart>()> &make,
              std::vector<VKTab::LineId> lines, const std::atomic<bool> *cancelled);

} // namespace VelkRelease
