#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/RangeText.h>
#include <geomcore/value/ResolveRangeOptionsI.h>
#include <geomcore/value/VarId.h>

#include <QStringList>

#include <memory>
#include <vector>

namespace VKTab {

class Content;
class LineI;
class Var;

/// Walk over the value combinations of a line's ranges, at most RangeText::MaxValues of them. The
/// variable named last runs fastest, each range in its written order. Every combination is put into
/// the line; after the last one the values are taken out, and the line shows what its table has. An
/// iterator that ends before the last combination leaves that one in the line.
///
/// A variable takes part if it is a range variable whose cell lists values or steps; a cell with
/// one plain value, an empty one, or one that is no range does not. Values that were chosen from a
/// range by LineI::apply do not narrow the walk.
class VELKGEOMCORE_EXPORT ValueRangeIterator
{
public:
    /// Keeps references to line and options, which must outlive it.
    ValueRangeIterator(const Content &content, LineI &line, const ResolveRangeOptionsI &options);
    ValueRangeIterator(const ValueRangeIterator &) = delete;
    ValueRangeIterator &operator=(const ValueRangeIterator &) = delete;
    ~ValueRangeIterator();

    /// Names the variables to walk and starts anew. A name that stands twice counts once.
    void setVariablesToResolve(const QStringList &names);
    /// Steps to the next combination, at first to the first one. False when there is none left, at
    /// once if no named variable takes part.
    bool next();
    /// Combinations of the walk, without walking: the product of the ranges, RangeText::MaxValues
    /// at most.
    [[nodiscard]] int count() const;

private:
    struct Range
    {
        VarId id;
        RangeText values;
        qint64 place = 0;
    };

    void addRange(const Var &var);
    bool step();

    std::unique_ptr<Content> m_content;
    LineI &m_line;
    const ResolveRangeOptionsI &m_options;
    std::vector<Range> m_ranges;
    int m_walked = 0;
    bool m_started = false;
    bool m_done = false;
};

} // namespace VKTab
