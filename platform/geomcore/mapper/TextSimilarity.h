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
    /// be edited (Levenshtein, over the longer length). Two equal texts have 1. Of long texts only
    /// the beginning is compared character by character. Characters are not looked at if the tokens
    /// alone show that the result stays below \a least; it is then an upper bound.
    [[nodiscard]] double similarity(const ComparableText &other, double least = 0) const;
    [[nodiscard]] const QString &text() const { return m_text; }
    /// Parts of text().
    [[nodiscard]] const std::vector<QStringView> &tokens() const { return m_tokens; }

private:
    QString m_text;
    std::vector<QStringView> m_tokens; ///< Sorted, each once.
};

/// Smallest number of inserted, removed and replaced characters that makes one text the other.
[[nodiscard]] VELKGEOMCORE_EXPORT int editDistance(QStringView a, QStringView b);

} // namespace Mapper
