#include "LineText.h"

#include "LineI.h"

namespace VKTab {

LineText::LineText(const QString &columnOrPattern, const FindVar &findVar)
{
    if (columnOrPattern.isEmpty())
        return;
    const Var column = findVar(columnOrPattern);
    if (column.isValid())
        m_parts.append({QString(), column});
    else
        addPattern(columnOrPattern, findVar);
}

void LineText::addPattern(const QString &pattern, const FindVar &findVar)
{
    QString literal;
    qsizetype at = 0;
    while (at < pattern.size()) {
        const qsizetype end = pattern[at] == u'{' ? pattern.indexOf(u'}', at) : -1;
        const Var var = end < 0 ? Var() : findVar(QStringView(pattern).mid(at + 1, end - at - 1));
        if (!var.isValid()) {
            literal += pattern[at++];
            continue;
        }
        if (!literal.isEmpty())
            m_parts.append({literal, Var()});
        literal.clear();
        m_parts.append({QString(), var});
        at = end + 1;
    }
    if (!literal.isEmpty())
        m_parts.append({literal, Var()});
}

QString LineText::text(const LineI &line) const
{
    QString result;
    for (const Part &part : m_parts)
        result +=
            part.var.isValid() ? line.getValue(part.var, FormatPlain, {}).toString() : part.literal;
    return result;
}

} // namespace VKTab
