#pragma once

#include "NeighbourScore.h"
#include "RuleScore.h"

#include <QTextStream>

#include <vector>

/// What is wanted of the rule over all that was measured, and what came out.
class GoalTable
{
public:
    /// \a withKeys: the first columns are there. \a removed: a part of the new lines was taken
    /// away.
    void add(const QString &name, bool disturbed, bool withKeys, bool removed,
             const RuleScore &score);
    void print(QTextStream &out) const;
    /// Of the check of neighbours.
    static void printNeighbours(QTextStream &out, const QString &sets, const NeighbourScore &score);

private:
    struct Measured
    {
        QString name;
        bool disturbed;
        bool withKeys;
        bool removed;
        RuleScore score;
    };
    std::vector<Measured> m_all;
};
