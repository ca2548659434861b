#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "FindResult.h"
#include "FindValue.h"
#include <geomcore/value/TableEnums.h>
#include <geomcore/value/TabVarValue.h>

#include <QFlags>
#include <QList>
#include <QVector>

namespace VKTab {

class Content;
class LineI;

/// Search of lines by values. Numbers compare by value to ten significant digits, other texts
/// exactly after trimming; a missing cell equals an empty value. What a range cell offers is
/// compared, not a value that was chosen from it.
class VELKGEOMCORE_EXPORT Finder
{
public:
    enum FindFlag {
        FindVisible = 1,       ///< visible lines only
        FindRangeContains = 2, ///< a range matches if it contains the value
    };
    Q_DECLARE_FLAGS(FindFlags, FindFlag)

    /// One find value for each value whose variable the table has and the filter takes, in the
    /// order given; others are dropped.
    [[nodiscard]] QList<FindValue> toValueList(const Content &content,
                                               const QList<TabVarValue> &values,
                                               VarTypeFilterFlags filter) const;
    /// Compares the line with the values, ranges by what they contain, and puts the values into the
    /// line, equal or not. The result has the line's id if all are equal and there is one at all.
    FindResult cmpLineWithValues(LineI &line, const QList<FindValue> &values) const;
    /// The lines of the given ids that have all the values, in the order of the ids. Without values
    /// none. Ids that name no line are passed over.
    [[nodiscard]] QList<FindResult> findLines(const Content &content, const QVector<LineId> &lines,
                                              const QList<FindValue> &values,
                                              FindFlags flags) const;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Finder::FindFlags)

} // namespace VKTab
