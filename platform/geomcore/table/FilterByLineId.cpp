#include "FilterByLineId.h"

#include "FilteredTable.h"
#include "FilterRule.h"
#include "LineSet.h"
#include "TableData.h"

#include <algorithm>

namespace VKTab {

namespace {

class LineNumberRule : public FilterRule
{
public:
    /// \a lines ascend.
    LineNumberRule(std::vector<int> lines, bool used)
        : m_lines(std::move(lines))
        , m_used(used)
    {
    }

    [[nodiscard]] const std::vector<int> &lines() const { return m_lines; }

    [[nodiscard]] QString className() const override { return FilterByLineId::className(); }
    [[nodiscard]] bool isUsed() const override { return m_used && !m_lines.empty(); }
    void evaluate(const FilteredTable &table, LineSet &visible) const override
    {
        LineSet shown(visible.capacity(), false);
        if (table.data().descriptor().lineSubIdField.isEmpty())
            insertByNumber(table.data(), shown);
        else
            insertByRow(table.data(), shown);
        visible.intersect(shown);
    }

private:
    void insertByNumber(const TableData &table, LineSet &shown) const
    {
        for (const int line : m_lines) {
            const int row = table.rowOf(line);
            if (row >= 0)
                shown.insert(row);
        }
    }

    /// Where several lines may have one number.
    void insertByRow(const TableData &table, LineSet &shown) const
    {
        for (int row = 0; row < shown.capacity(); ++row) {
            if (std::binary_search(m_lines.begin(), m_lines.end(), table.lineNumber(row)))
                shown.insert(row);
        }
    }

    std::vector<int> m_lines;
    bool m_used;
};

std::vector<int> ascending(const QHash<int, TabFilterData> &lines)
{
    std::vector<int> numbers(lines.keyBegin(), lines.keyEnd());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

const LineNumberRule *ruleOf(const FilterBase &filter)
{
    return dynamic_cast<const LineNumberRule *>(filter.rule().get());
}

} // namespace

FilterByLineId::FilterByLineId()
    : FilterByLineId(QHash<int, TabFilterData>(), false)
{
}

FilterByLineId::FilterByLineId(const QHash<int, TabFilterData> &lines, bool used)
    : FilterBase(std::make_shared<LineNumberRule>(ascending(lines), used))
{
}

FilterByLineId FilterByLineId::ofAscending(std::vector<int> lines)
{
    FilterByLineId filter;
    filter.setRule(std::make_shared<LineNumberRule>(std::move(lines), true));
    return filter;
}

FilterByLineId::FilterByLineId(const FilterBase &filter)
    : FilterBase(filter)
{
    if (!ruleOf(filter))
        setRule(std::make_shared<LineNumberRule>(std::vector<int>(), false));
}

FilterByLineId::FilterByLineId(const FilterByLineId &other) = default;
FilterByLineId &FilterByLineId::operator=(const FilterByLineId &other) = default;
FilterByLineId::~FilterByLineId() = default;

bool FilterByLineId::getLineIdFilterUsed() const
{
    return isUsed();
}

void FilterByLineId::setLineIdFilterUsed(bool used)
{
    const LineNumberRule *const rule = ruleOf(*this);
    setRule(std::make_shared<LineNumberRule>(rule ? rule->lines() : std::vector<int>(), used));
}

QHash<int, TabFilterData> FilterByLineId::getLines() const
{
    const LineNumberRule *const rule = ruleOf(*this);
    QHash<int, TabFilterData> lines;
    if (!rule)
        return lines;
    for (const int line : rule->lines())
        lines.insert(line, TabFilterData());
    return lines;
}

QString FilterByLineId::className()
{
    return QStringLiteral("VKTab::FilterByLineId");
}

} // namespace VKTab
