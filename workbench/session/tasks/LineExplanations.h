#pragma once

#include <release/pattern/LineComparer.h>
#include <release/pattern/ValueChange.h>
#include <workbench/session/common/SessionTypes.h>

#include <QStringList>

#include <optional>
#include <vector>

/// What is known of one line of the open document.
struct LineExplanation
{
    LineRef line;
    bool isConfirmed = false;
    bool isRead = false; ///< the tables could be read and have the line
    QString designation;
    std::optional<VelkRelease::LineComparer::Pair> assigned; ///< nothing if it is not assigned
    LineCandidatesC candidates;
    QStringList errors;
};

/// What several lines of a project differ in from the lines that they are assigned to.
struct LinePairs
{
    struct Row
    {
        int line = -1;
        QString designation;
        QString targetPath;
        int targetLine = -1; ///< -1: without target, or it cannot be read
        QList<VelkRelease::ValueChange> changes;
    };
    /// More lines are not compared.
    static constexpr int MaxLines = 1000;

    ProjectId project;
    QList<int> lines; ///< that were asked for
    std::vector<Row> rows;
    QList<VelkRelease::ValueChange> common; ///< of all lines with a target
};
