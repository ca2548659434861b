#pragma once

#include <geomcore/value/LineId.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QString>

/// How one variable of a source line stands to the same variable of a candidate.
struct ComparedVariableC
{
    enum Outcome : quint8 {
        Equal,     ///< Equal values as lines are compared; no value on either side too.
        Replaced,  ///< The new value is made of the old one as in other lines of the release.
        Near,      ///< A number close by, or a text with words in common.
        Different, ///< Nothing in common.
        Missing,   ///< One of the lines has no value.
    };

    QString name;     ///< Of the target's variable.
    QString oldValue; ///< After the target's variable mappings; empty: no value.
    QString newValue;
    Outcome outcome = Different;
    int supports = 0; ///< Replaced: the number of other lines with the same replacement.

    friend bool operator==(const ComparedVariableC &, const ComparedVariableC &) = default;
};

/// A line that a source line may have become.
struct LineCandidateC
{
    int targetIndex = -1; ///< In the working mapping.
    QString targetPath;
    VKTab::LineId lineId; ///< Of the target's table.
    double probability = 0;
    QList<ComparedVariableC> variables; ///< In the order of the target's table.
    /// One sentence in the user's language: what speaks for the line and what against it.
    QString explanation;
};

/// What a mapper knows about the successor of one source line.
struct LineCandidatesC
{
    static constexpr int MaxCandidates = 5;
    /// Less probable lines are no candidates, but for the best one.
    static constexpr double LeastProbability = 0.02;
    /// A line at least as probable is proposed.
    static constexpr double ProposedProbability = 0.5;

    /// Most probable first, at most MaxCandidates. The first one need not be the line that is
    /// assigned: a person may have chosen another.
    QList<LineCandidateC> candidates;
    double noSuccessor = 1; ///< Probability that the line is gone.
    /// One sentence: why the first candidate is proposed, or why none is.
    QString explanation;
};
