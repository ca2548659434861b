#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

#include <string_view>
#include <vector>

namespace Mapper {

/// A text prepared to be compared with many others: lower case and its tokens, which are runs of
/// letters and runs of digits with at most one decimal point.
class VELKGEOMCORE_EXPORT ComparableText
{
public:
    explicit ComparableText(std::string_view utf8);

    /// From 0 to 1: the mean of how many tokens both have (Dice) and of how few characters have to
    /// be edited (Levenshtein, over the longer length). Two equal texts have 1.
    [[nodiscard]] double similarity(const ComparableText &other) const;
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] const std::vector<QString> &tokens() const { return m_tokens; }

private:
    QString m_text;
    std::vector<QString> m_tokens; ///< Sorted, each once.
};

/// Smallest number of inserted, removed and replaced characters that makes one text the other.
[[nodiscard]] VELKGEOMCORE_EXPORT int editDistance(QStringView a, QStringView b);

} // namespace Mapper
