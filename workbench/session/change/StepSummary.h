#pragma once

#include "MappingDifference.h"

#include <QCoreApplication>
#include <QSet>

#include <array>

/// Says in words what a step did, from what it changed.
class StepSummary
{
    Q_DECLARE_TR_FUNCTIONS(StepSummary)

public:
    void add(const MappingDifference &difference);

    /// Source lines that changed, each once a project.
    [[nodiscard]] int lines() const { return m_lines; }
    /// German, as "3 Zeilen bestätigt, 1 Konflikt angenommen in a/b.prj", or of a single line
    /// "Zeile 3 → 7 bestätigt (vorher 5) in a/b.prj"; empty if nothing was added.
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
    void addLine(const LineDifference &line);
    [[nodiscard]] QString linesText() const;
    [[nodiscard]] QString oneLineText() const;
    [[nodiscard]] static QString linesText(LineKind kind, int lines);
    [[nodiscard]] QString headText() const;
    [[nodiscard]] static QString headText(HeadKind kind);
    [[nodiscard]] static LineKind kindOf(const LineDifference &line);

    std::array<int, LineKinds> m_byLine{};
    std::array<bool, HeadKinds> m_heads{};
    int m_lines = 0;
    int m_conflictsSettled = 0; ///< of all lines, whatever else became of them
    LineDifference m_last;
    QSet<QString> m_projects; ///< paths
};
