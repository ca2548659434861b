#pragma once

#include <core/json/PJsonValue.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <workbench/session/change/MappingDifference.h>

#include <QByteArrayList>
#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// A mapping before and after a step; not valid where the release did not know it.
struct MappingChangePair
{
    PrjMappingC before;
    PrjMappingC after;
};

/// All that a step changed, so that it can be taken back and again whatever came after it.
struct StepChanges
{
    struct Dates
    {
        QString before;
        QString after;
    };
    struct Replacements
    {
        QList<AgreedReplacement> before;
        QList<AgreedReplacement> after;
    };
    std::vector<MappingDifference> mappings; ///< in the order of the changes
    std::optional<Dates> targetDate;
    std::optional<Replacements> replacements;

    /// The way back.
    [[nodiscard]] StepChanges reversed() const;
    /// Of journal records of one step; those that cannot be read are left out.
    [[nodiscard]] static StepChanges ofRows(const QByteArrayList &rows);
    [[nodiscard]] static StepChanges between(const ReleaseMappingC &before,
                                             const ReleaseMappingC &after);
};

/// One user action.
struct UndoStep
{
    enum class State {
        Applied,   ///< it is part of the release as it stands
        Undone,    ///< it was taken back
        Overtaken, ///< of a former session, and something else stands there now
    };

    QString text;
    std::optional<int> lines = 0; ///< nothing: not counted yet
    QString key;                  ///< names it in the journal: its session and its number there
    QDateTime time;
    QString author;
    bool isOwn = true; ///< by this user, and in this file itself
    State state = State::Applied;
    QList<MappingChangePair> changes;
    /// Set if the step replaced the whole release; then there are no changes.
    std::optional<ReleaseMappingC> releaseBefore;
    std::optional<ReleaseMappingC> releaseAfter;
    QByteArrayList rows;                      ///< of a former session: what the journal has of it
    std::shared_ptr<const StepChanges> noted; ///< of a step whose states were let go

    [[nodiscard]] StepChanges allChanges() const;
    /// Keeps what changed instead of the states before and after.
    void letStatesGo();
};
