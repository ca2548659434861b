#pragma once

#include "FilterBase.h"
#include "LineOrder.h"
#include "LineSet.h"
#include <geomcore/value/VarId.h>

#include <QStringList>

#include <memory>
#include <vector>

namespace VKTab {

class Content;
class ContentStructure;
class LayerI;

/// Works out which lines of a table are visible: what filters, conditions and column filters of the
/// layers, and hidden lines leave. The filters must not ask the table which lines are visible.
class LineFilters
{
public:
    /// \a content is what the layers are asked with for their filters.
    LineFilters(const Content &content, std::shared_ptr<const ContentStructure> structure);

    void add(const FilterBase &filter);
    [[nodiscard]] std::shared_ptr<const LineOrder> evaluate();

private:
    void hideLines(const LayerI &layer, LineSet &visible) const;
    void filterColumns(const LayerI &layer, LineSet &visible) const;
    void filterFileColumn(int column, const QStringList &texts, LineSet &visible) const;
    void filterByLines(const VarId &id, const QStringList &texts, LineSet &visible) const;
    [[nodiscard]] bool filtersAnything() const;

    std::shared_ptr<const ContentStructure> m_structure;
    std::vector<FilterBase> m_filters;
};

} // namespace VKTab
