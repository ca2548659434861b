#include "ValueRangeIterator.h"

#include "Content.h"
#include "LineI.h"
#include <geomcore/value/RangeCell.h>

#include <algorithm>

namespace VKTab {

ValueRangeIterator::ValueRangeIterator(const Content &content, LineI &line,
                                       const ResolveRangeOptionsI &options)
    : m_content(std::make_unique<Content>(content))
    , m_line(line)
    , m_options(options)
{
}

ValueRangeIterator::~ValueRangeIterator() = default;

void ValueRangeIterator::setVariablesToResolve(const QStringList &names)
{
    m_ranges.clear();
    m_walked = 0;
    m_started = false;
    m_done = false;
    for (const QString &name : names)
        addRange(m_content->getVar(name));
}

void ValueRangeIterator::addRange(const Var &var)
{
    const bool known = std::any_of(m_ranges.begin(), m_ranges.end(),
                                   [&](const Range &range) { return range.id == var.getVarId(); });
    if (known || !var.isValid() || !var.isFW() || !m_line.isValid() || !m_options.resolves(var))
        return;
    const LineId line = m_line.getLineInfo().getLineId();
    auto values = parseRangeCell(m_content->getRangeText(var.getVarId(), line),
                                 m_content->getDecimalChar(var.getVarId()));
    if (values)
        m_ranges.push_back({var.getVarId(), std::move(*values), 0});
}

bool ValueRangeIterator::next()
{
    if (m_done || m_ranges.empty())
        return false;
    if (m_started && (m_walked == RangeText::MaxValues || !step())) {
        m_done = true;
        for (const Range &range : m_ranges)
            m_line.takeValue(range.id);
        return false;
    }
    if (!m_started) {
        for (const Range &range : m_ranges)
            m_line.putValue(range.id, range.values.value(0));
    }
    m_started = true;
    ++m_walked;
    return true;
}

int ValueRangeIterator::count() const
{
    qint64 product = m_ranges.empty() ? 0 : 1;
    for (const Range &range : m_ranges)
        product =
            std::min<qint64>(product * std::min<qint64>(range.values.count(), RangeText::MaxValues),
                             RangeText::MaxValues);
    return int(product);
}

bool ValueRangeIterator::step()
{
    for (auto range = m_ranges.rbegin(); range != m_ranges.rend(); ++range) {
        const bool wraps = ++range->place == range->values.count();
        range->place = wraps ? 0 : range->place;
        m_line.putValue(range->id, range->values.value(range->place));
        if (!wraps)
            return true;
    }
    return false;
}

} // namespace VKTab
