#pragma once

#include "LineCandidatesC.h"
#include "MapperFlags.h"
#include "PrjMapperCheckResultC.h"
#include "PrjMapperLineC.h"

#include <geomcore/records/MappingNodeC.h>

#include <core/text/PRefPtr.h>

#include <functional>
#include <memory>

class CatalogMappingC;
class IndexTreeC;
class PPathName;
class PrjMapperPrivate;
namespace VKTab {
class Content;
class LineView;
} // namespace VKTab

/// Works out, for the lines of one source project, which line of which target project each belongs
/// to. It works on a copy of one project's mapping, the working mapping.
///
/// Operations that take the values of a line take them as a varset or as a view of a table line;
/// both give the same results, and the view is the fast one. A mapper serves one thread. Target
/// tables are opened at the first need and shared with other mappers, also of other threads. A
/// target whose table cannot be read holds no line: nothing is proposed from it, nothing in it is
/// confirmed by a check.
class VELKGEOMCORE_EXPORT PrjMapperC
{
public:
    using Varset = QHash<QString, MapVarValueC>;

    explicit PrjMapperC(const PRefPtr<IndexTreeC> &indexTree);
    PrjMapperC(const PrjMapperC &) = delete;
    PrjMapperC &operator=(const PrjMapperC &) = delete;
    ~PrjMapperC();

    /// True: target tables stay open as long as the mapper lives, and every line of them counts.
    /// False: lines that the target project's own filter conditions hide are not proposed. Call it
    /// before the first look-up.
    void setCreatorMode(bool creator);
    /// \a isCanceled is asked while whole tables are compared, on any thread, also of combinations
    /// of ranges. Once it answered true, what the mapper says is of no use, and nothing of it is
    /// kept for other mappers.
    void setCancellation(std::function<bool()> isCanceled);
    void setSourceProject(const PPathName &sourcePath);
    /// The table is shared, and must not be changed while the mapper lives.
    void setSourceTable(const VKTab::Content &table);

    /// Takes the mapping of that path and version from the last release as working mapping and
    /// gives its flags with StateUsable, or none if there is no such mapping.
    QFlags<PRJMAPPING::MappingState_> findMapping(const QString &sourcePath,
                                                  const QString &sourceVersion,
                                                  const CatalogMappingC &catalog);

    /// The stored assignment of the line, one in the not-found target included (valid, not found).
    /// Not valid if no target holds the line.
    [[nodiscard]] PrjMapperLineC findLine(int lineId, const Varset &varset);
    [[nodiscard]] PrjMapperLineC findLine(int lineId, const VKTab::LineView &line);

    /// Proposes a target line, always in state ToCheck: the line with equal values in the first
    /// target that has one; else, if no combination of the source line's ranges has one anywhere,
    /// the line that agrees on identifying columns; else the clearly most similar line. Valid, not
    /// found and without history if there is nothing to propose.
    ///
    /// The first call for a line takes its entries that are not Verified out of the working
    /// mapping. With \a firstTargetOnly only the first target whose conditions hold is looked at.
    [[nodiscard]] PrjMapperLineC createLine(int lineId, const Varset &varset, bool firstTargetOnly);
    [[nodiscard]] PrjMapperLineC createLine(int lineId, const VKTab::LineView &line,
                                            bool firstTargetOnly);

    /// The lines that the source line may have become, with what createLine proposes as the first
    /// one if anything is proposed, and how probable it is that it has no successor. Takes nothing
    /// out of the working mapping, and does not ask what is assigned now.
    [[nodiscard]] LineCandidatesC candidates(int lineId, const Varset &varset);
    [[nodiscard]] LineCandidatesC candidates(int lineId, const VKTab::LineView &line);

    /// How the values of the source line, as its target sees them, stand to those of the target
    /// line that it is assigned to, whether that is a candidate or not. Empty if it is not found,
    /// or the target's table cannot be read or does not have the line. Which values are replaced
    /// comes from a plan over the whole table; whoever needs only the values does without.
    [[nodiscard]] QList<ComparedVariableC>
    compareLine(const PrjMapperLineC &line, const VKTab::LineView &view, bool withPlan = true);

    /// Whether some target has, for some combination of the source line's ranges, a line with equal
    /// values, as far as its conditions hold: createLine proposes such a one for that combination.
    /// Looks all lines up at once at the first call, and takes nothing out of the working mapping.
    [[nodiscard]] bool hasEqualLine(int lineId);

    /// The line's values as its target sees them. Without a target the values stay as they are.
    [[nodiscard]] Varset updateVarset(const PrjMapperLineC &line, const Varset &varset,
                                      QFlags<VarsetModeFlag> mode);
    [[nodiscard]] Varset updateVarset(const PrjMapperLineC &line, const VKTab::LineView &view,
                                      QFlags<VarsetModeFlag> mode);

    /// Checks an assignment for these values. \a text stands before each message. A line that is
    /// not valid or not found is not OK, without a message.
    [[nodiscard]] PrjMapperCheckResultC
    checkMapping(const PrjMapperLineC &line, const Varset &sourceVarset, const Varset &targetVarset,
                 QFlags<CheckModeFlag> mode, const QString &text);
    /// The same with the target's values worked out from the view.
    [[nodiscard]] PrjMapperCheckResultC checkMapping(const PrjMapperLineC &line,
                                                     const VKTab::LineView &view,
                                                     QFlags<CheckModeFlag> mode,
                                                     const QString &text);
    /// Whether checkMapping would be OK, without making messages.
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view,
                                   QFlags<CheckModeFlag> mode);
    /// Whether the target line has equal values for those of the view, in text columns as texts,
    /// whatever else speaks against the assignment.
    [[nodiscard]] bool hasEqualValues(const PrjMapperLineC &line, const VKTab::LineView &view);
    /// Checks values and conditions for the source line as stored and then for each combination of
    /// the ranges that conditions read; the result is that of the first that fails.
    [[nodiscard]] PrjMapperCheckResultC checkMapping(const PrjMapperLineC &line,
                                                     const VKTab::LineId &sourceLine);

    /// Enters the line in the working mapping and takes it out of its former target; a confirmed
    /// assignment elsewhere stays if \a line is not confirmed itself. With the same target and
    /// target line only the state changes, else the entry is a fresh one. False if the line is not
    /// valid and found.
    bool addLine(const PrjMapperLineC &line);

    /// The node that holds the working mapping. Assign to it at once: the reference serves until
    /// the next operation.
    [[nodiscard]] MappingNodeC &mappingNode();
    /// The working mapping with every line that createLine was asked for and that no target holds
    /// entered in the not-found target, and with its flags refreshed.
    [[nodiscard]] MappingNodeC getMappingNode();

private:
    std::unique_ptr<PrjMapperPrivate> d;
};
