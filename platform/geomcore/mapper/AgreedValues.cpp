#include "AgreedValues.h"

#include <algorithm>

namespace Mapper {

AgreedValues::AgreedValues(const QList<AgreedReplacement> &replacements, const QString &sourcePath)
{
    for (const AgreedReplacement &replacement : replacements) {
        if (replacement.holdsIn(sourcePath))
            m_entries.push_back({replacement.variable.toStdString(), replacement});
    }
}

bool AgreedValues::concern(std::string_view variable) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [variable](const Entry &entry) { return entry.variable == variable; });
}

std::string_view AgreedValues::meaningOf(std::string_view variable, std::string_view value,
                                         char decimalChar, std::string &scratch) const
{
    if (value.empty())
        return value;
    for (const Entry &entry : m_entries) {
        if (entry.variable != variable)
            continue;
        const QString text = QString::fromUtf8(value.data(), qsizetype(value.size()));
        const QString meant = entry.replacement.applied(text, QLatin1Char(decimalChar));
        if (meant == text)
            continue;
        scratch = meant.toStdString();
        return scratch;
    }
    return value;
}

std::string AgreedValues::signature() const
{
    std::string text;
    for (const Entry &entry : m_entries) {
        const AgreedReplacement &said = entry.replacement;
        for (const QString &part :
             {said.variable, said.before, said.after, said.factor, said.offset})
            text += part.toStdString() + '\x1d';
    }
    return text;
}

} // namespace Mapper
