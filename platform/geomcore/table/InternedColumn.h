#pragma once

#include <QtGlobal>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace VKTab {

/// The cells of one column as numbers: rows with the same text have the same id. Ids count from 0
/// in order of first appearance. Lives as long as its table.
struct InternedColumn
{
    std::vector<quint32> ids;             ///< By row.
    std::vector<std::string_view> values; ///< By id; unquoted text.
    std::deque<std::string> unquoted;     ///< Owns the values that are not in the file as such.
};

} // namespace VKTab
