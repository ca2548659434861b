#pragma once

#include <geomcore/records/AgreedReplacement.h>

#include <QList>

#include <string>
#include <string_view>
#include <vector>

namespace Mapper {

/// What was agreed to about the values of a project: an old value stands for the new one where
/// proposals are weighed, and nowhere else. Texts are UTF-8.
class AgreedValues
{
public:
    AgreedValues() = default;
    /// Takes those that hold in the project.
    AgreedValues(const QList<AgreedReplacement> &replacements, const QString &sourcePath);

    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }
    /// Whether anything was agreed to about a variable of the new table.
    [[nodiscard]] bool concern(std::string_view variable) const;
    /// What an old value stands for: the first agreement that means it counts. \a scratch keeps
    /// what is returned.
    [[nodiscard]] std::string_view meaningOf(std::string_view variable, std::string_view value,
                                             char decimalChar, std::string &scratch) const;
    /// Two that say the same have the same text.
    [[nodiscard]] std::string signature() const;

private:
    struct Entry
    {
        std::string variable;
        AgreedReplacement replacement;
    };
    std::vector<Entry> m_entries;
};

} // namespace Mapper
