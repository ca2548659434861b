#pragma once

#include <geomcore/value/TableEnums.h>
#include <geomcore/value/Value.h>

#include <string>
#include <string_view>

namespace VKTab {

class TableData;
struct TableField;

/// The text of a cell in plain notation: no blanks around it, and a decimal point where the field
/// has another decimal character and the text is a number. Points into `text` or into `scratch`,
/// which `text` may point into.
[[nodiscard]] std::string_view plainText(std::string_view text, const TableField &field,
                                         std::string &scratch);

/// A cell's text as it is asked for; null for a missing value.
[[nodiscard]] Value formattedText(const TableData &table, int column, std::string_view text,
                                  FormatFlags format);

/// The cell of a column of the file as it is asked for; null for a missing value.
[[nodiscard]] Value cellValue(const TableData &table, int row, int column, FormatFlags format);

} // namespace VKTab
