#pragma once

#include "MappingDifference.h"

#include <QSet>

#include <array>

/// Says in words what a step did, from what it changed.
class StepSummary
{
public:
    void add(const MappingDifference &difference);

    /// Source lines that changed, each once a project.
    [[nodiscard]] int lines() const { return m_lines; }
    /// German, as "3 Zeilen bestätigt in a/b.prj"; empty if nothing was added.
    [[nodiscard]] QString text() const;

private:
    enum LineKind {
        Confirmed,
        Expired,
        Assigned,
        Removed,
        RangeText,
        ConflictSettled,
        OtherLine,
        LineKinds,
    };
    enum HeadKind {
        NewProject,
        ProjectRemoved,
        TargetAdded,
        TargetRemoved,
        Order,
        Conditions,
        Modifiers,
        Versions,
        HeadKinds,
    };

    void addTargets(const MappingDifference &difference);
    void addLines(const MappingDifference &difference);
    [[nodiscard]] QString linesText() const;
    [[nodiscard]] QString headText() const;
    [[nodiscard]] static QString headText(HeadKind kind);
    [[nodiscard]] static LineKind kindOf(const LineDifference &line);

    std::array<int, LineKinds> m_byLine{};
    std::array<bool, HeadKinds> m_heads{};
    int m_lines = 0;
    QSet<QString> m_projects; ///< paths
};
