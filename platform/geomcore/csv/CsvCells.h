#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QtGlobal>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VKTab {

/// One record of a CSV file, unquoted.
struct CsvRecord
{
    std::vector<std::string> cells;
    quint64 end = 0;           ///< Offset behind its line end.
    bool terminated = false;   ///< A line end follows.
    const char *bad = nullptr; ///< Where its quotes are wrong; null if they are right.
};

/// Reads the record that begins at \a begin, byte by byte. For header rows and other single
/// records.
[[nodiscard]] CsvRecord readRecord(std::string_view bytes, quint64 begin);

/// Behind the closing quote of the quoted cell that begins at \a at; null if it is left open. What
/// follows the quote is the caller's to check.
[[nodiscard]] const char *endOfQuoted(const char *at, const char *limit);

/// The text of a quoted cell, quotes included in \a cell: a view into it, or into \a scratch, to
/// which it is appended, if quotes are doubled. \a scratch must have the room.
[[nodiscard]] std::string_view unquote(std::string_view cell, std::string &scratch);

/// Splits a row without quotes into \a cells; stops when they are full. \a limit: end of the
/// readable bytes.
void splitPlain(std::string_view row, const char *limit, std::span<std::string_view> cells);
/// Splits a row that was checked and may have quotes.
void splitQuoted(std::string_view row, std::span<std::string_view> cells, std::string &scratch);

/// Appends a cell, quoted if it has to be: it holds a comma, a quote or a line break, or begins or
/// ends with a blank.
VELKGEOMCORE_EXPORT void appendCell(std::string &out, std::string_view text);

} // namespace VKTab
