#include "FilterByLineId.h"

#include "Content.h"
#include "FilterRule.h"
#include "LineSet.h"
#include "TableData.h"

namespace VKTab {

namespace {

class LineNumberRule : public FilterRule
{
public:
    LineNumberRule(QHash<int, TabFilterData> lines, bool used)
        : m_lines(std::move(lines))
        , m_used(used)
    {
    }

    [[nodiscard]] const QHash<int, TabFilterData> &lines() const { return m_lines; }

    [[nodiscard]] QString className() const override { return FilterByLineId::className(); }
    [[nodiscard]] bool isUsed() const override { return m_used && !m_lines.isEmpty(); }
    void evaluate(const Content &content, LineSet &visible) const override
    {
        const auto table = content.getTableData();
        LineSet shown(visible.capacity(), false);
        if (table->descriptor().lineSubIdField.isEmpty())
            insertByNumber(*table, shown);
        else
            insertByRow(*table, shown);
        visible.intersect(shown);
    }

private:
    void insertByNumber(const TableData &table, LineSet &shown) const
    {
        for (auto line = m_lines.keyBegin(); line != m_lines.keyEnd(); ++line) {
            const int row = table.rowOf(*line);
            if (row >= 0)
                shown.insert(row);
        }
    }

    /// Where several lines may have one number.
    void insertByRow(const TableData &table, LineSet &shown) const
    {
        for (int row = 0; row < shown.capacity(); ++row) {
            if (m_lines.contains(table.lineNumber(row)))
                shown.insert(row);
        }
    }

    QHash<int, TabFilterData> m_lines;
    bool m_used;
};

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
    : FilterBase(std::make_shared<LineNumberRule>(lines, used))
{
}

FilterByLineId::FilterByLineId(const FilterBase &filter)
    : FilterBase(filter)
{
    if (!ruleOf(filter))
        setRule(std::make_shared<LineNumberRule>(QHash<int, TabFilterData>(), false));
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
    setRule(std::make_shared<LineNumberRule>(getLines(), used));
}

QHash<int, TabFilterData> FilterByLineId::getLines() const
{
    const LineNumberRule *rule = ruleOf(*this);
    return rule ? rule->lines() : QHash<int, TabFilterData>();
}

QString FilterByLineId::className()
{
    return QStringLiteral("VKTab::FilterByLineId");
}

} // namespace VKTab
