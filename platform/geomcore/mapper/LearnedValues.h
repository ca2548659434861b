#pragma once

#include <geomcore/plan/CellValues.h>
#include <geomcore/plan/KnownChanges.h>
#include <geomcore/records/LearnedReplacement.h>

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QString>

#include <string>

namespace Mapper {

/// What the projects of a release showed alike of how values are replaced, as a plan begins with
/// it: each change counts like a few pairs of lines, by its share of those that could have changed
/// so. Costs nothing until a plan asks.
class VELKGEOMCORE_EXPORT LearnedValues
{
public:
    LearnedValues() = default;
    explicit LearnedValues(const QList<LearnedReplacement> &learned)
        : m_learned(learned)
    {
    }

    [[nodiscard]] bool isEmpty() const { return m_learned.isEmpty(); }
    /// Adds those of a variable to what is known of the variable with this number; its values get
    /// numbers.
    void addTo(Plan::KnownChanges &known, const QString &variable, int number,
               Plan::CellValues &values) const;
    /// Two that say the same have the same text.
    [[nodiscard]] std::string signature() const;

private:
    QList<LearnedReplacement> m_learned;
};

} // namespace Mapper
