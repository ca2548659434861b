#pragma once

#include "FilterBase.h"
#include "TabFilterData.h"

#include <QHash>

#include <vector>

namespace VKTab {

/// Filter that shows exactly the lines of the given numbers while it is in use. An empty hash
/// filters nothing; to show no line, pass a number that no line has, such as -1.
class VELKGEOMCORE_EXPORT FilterByLineId : public FilterBase
{
public:
    FilterByLineId();
    /// `used` false keeps the numbers without filtering by them.
    FilterByLineId(const QHash<int, TabFilterData> &lines, bool used);
    /// A filter in use by numbers in ascending order: the cheap way for very many.
    [[nodiscard]] static FilterByLineId ofAscending(std::vector<int> lines);
    /// The filter that a table returned; a filter of another class gives one that filters nothing.
    FilterByLineId(const FilterBase &filter);
    FilterByLineId(const FilterByLineId &other);
    FilterByLineId &operator=(const FilterByLineId &other);
    ~FilterByLineId() override;

    /// True if it filters now: it has numbers and is in use.
    [[nodiscard]] bool getLineIdFilterUsed() const;
    /// Changes this value only; the table follows with Content::setFilter.
    void setLineIdFilterUsed(bool used);
    [[nodiscard]] QHash<int, TabFilterData> getLines() const;

    [[nodiscard]] static QString className();
};

} // namespace VKTab
