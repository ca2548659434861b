#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/PrjMappingC.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <climits>

namespace VKTab {
class Content;
}

namespace VelkRelease {

/// Which values of an old line's ranges the value range texts of its entries give to new lines.
struct RangeCoverage
{
    struct Value
    {
        QString text;  ///< "10", or "10; 2" of several variables
        int times = 0; ///< given to so many lines
    };
    QStringList variables; ///< that the texts name
    QList<Value> values;   ///< all combinations in the order of the ranges
    QStringList strange;   ///< values that the texts name and the ranges do not have

    /// No text names a range of the line.
    [[nodiscard]] bool isEmpty() const { return values.isEmpty(); }
    [[nodiscard]] QStringList missing() const { return textsOf(0, 0); }
    [[nodiscard]] QStringList twice() const { return textsOf(2, INT_MAX); }

private:
    [[nodiscard]] VELKRELEASE_EXPORT QStringList textsOf(int least, int most) const;
};

/// At most RangeText::MaxValues combinations are looked at. A text that names fewer variables than
/// others counts for all values of the rest.
[[nodiscard]] VELKRELEASE_EXPORT RangeCoverage rangeCoverage(const VKTab::Content &sourceTable,
                                                             const PrjMappingC &mapping, int line);

} // namespace VelkRelease
