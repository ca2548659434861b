#pragma once

#include "SampleSet.h"

#include <QStringList>

/// What our rule is measured against: exact lines first; for the rest the tokens that both lines
/// have in a variable, weighted by rarity, and the place in the table, and one assignment over the
/// table. It always proposes.
class ReferenceRule
{
public:
    /// Partners of the old table's lines, by line from 1 on, among these new tables.
    [[nodiscard]] static QHash<int, TruthFile::Place>
    partners(const SampleTable &source, const SampleSet::Tables &targets, const QStringList &names);
};
