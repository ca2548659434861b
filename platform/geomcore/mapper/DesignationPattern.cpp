#include "DesignationPattern.h"

#include <geomcore/csv/TableDescriptor.h>

namespace Mapper {

DesignationPattern::DesignationPattern(const VKTab::TableDescriptor &descriptor)
{
    add(descriptor.lineNormNumber);
    if (!descriptor.lineNormNumber.isEmpty() && !descriptor.lineDesignation.isEmpty())
        m_parts.push_back({QStringLiteral("\n"), false});
    add(descriptor.lineDesignation);
}

DesignationPattern DesignationPattern::ofDesignation(const VKTab::TableDescriptor &descriptor)
{
    DesignationPattern pattern;
    pattern.add(descriptor.lineDesignation);
    return pattern;
}

void DesignationPattern::add(const QString &source)
{
    if (source.isEmpty())
        return;
    if (!source.contains(u'{')) {
        m_parts.push_back({source, true});
        return;
    }
    qsizetype at = 0;
    while (at < source.size()) {
        const qsizetype open = source.indexOf(u'{', at);
        const qsizetype close = open < 0 ? -1 : source.indexOf(u'}', open);
        if (close < 0)
            break;
        if (open > at)
            m_parts.push_back({source.mid(at, open - at), false});
        m_parts.push_back({source.mid(open + 1, close - open - 1), true});
        at = close + 1;
    }
    if (at < source.size())
        m_parts.push_back({source.mid(at), false});
}

} // namespace Mapper
