#include "CsvRewriter.h"

#include <core/text/PString.h>
#include <geomcore/csv/CsvCells.h>

#include <algorithm>
#include <vector>

namespace VelkRelease {

namespace {

constexpr size_t NotFound = std::string_view::npos;

/// Behind the closing quote of the quoted cell at \a at; NotFound if it is left open.
size_t behindQuoted(std::string_view csv, size_t at)
{
    for (at = csv.find('"', at + 1); at != NotFound; at = csv.find('"', at + 2)) {
        if (at + 1 >= csv.size() || csv[at + 1] != '"')
            return at + 1;
    }
    return NotFound;
}

/// Behind the cell at \a at: its separator, line feed or the end.
size_t behindCell(std::string_view csv, size_t at, char separator)
{
    if (at < csv.size() && csv[at] == '"') {
        const size_t quoted = behindQuoted(csv, at);
        at = quoted == NotFound ? csv.size() : quoted;
    }
    while (at < csv.size() && csv[at] != separator && csv[at] != '\n')
        ++at;
    return at;
}

/// Numbers of cells of the first rows.
std::vector<int> cellCounts(std::string_view csv, char separator)
{
    constexpr size_t MaxRows = 20;
    std::vector<int> counts;
    for (size_t at = 0; at < csv.size() && counts.size() < MaxRows;) {
        int count = 1;
        for (at = behindCell(csv, at, separator); at < csv.size() && csv[at] == separator; ++count)
            at = behindCell(csv, at + 1, separator);
        counts.push_back(count);
        ++at;
    }
    return counts;
}

bool areEqual(const std::vector<int> &counts)
{
    return std::adjacent_find(counts.begin(), counts.end(), std::not_equal_to<>()) == counts.end();
}

} // namespace

char separatorOf(std::string_view csv)
{
    constexpr char separators[] = {',', ';', '\t'};
    char widest = ',';
    int most = 0;
    for (const char separator : separators) {
        const std::vector<int> counts = cellCounts(csv, separator);
        const int count = counts.empty() ? 1 : counts.front();
        if (count > 1 && areEqual(counts))
            return separator;
        if (count > most) {
            most = count;
            widest = separator;
        }
    }
    return areEqual(cellCounts(csv, ',')) ? ',' : widest;
}

int rowOfBareReturn(std::string_view csv)
{
    size_t found = csv.find('\r');
    while (found != NotFound && found + 1 < csv.size() && csv[found + 1] == '\n')
        found = csv.find('\r', found + 2);
    if (found == NotFound)
        return 0;
    bool quoted = false; // by the number of quotes so far; doubled ones count for nothing
    int row = 1;
    for (size_t at = 0; at < csv.size(); ++at) {
        quoted = quoted != (csv[at] == '"');
        if (quoted)
            continue;
        if (csv[at] == '\r' && (at + 1 == csv.size() || csv[at + 1] != '\n'))
            return row;
        row += csv[at] == '\n' ? 1 : 0;
    }
    return 0;
}

CsvRewriter::CsvRewriter(std::string_view csv, char separator)
    : m_csv(csv)
    , m_separator(separator)
{
    m_out.reserve(csv.size() + csv.size() / 8);
}

bool CsvRewriter::run()
{
    while (m_at < m_csv.size()) {
        if (!copyCell())
            return false;
        endCell();
    }
    return true;
}

QByteArray CsvRewriter::take()
{
    return QByteArray(m_out.data(), qsizetype(m_out.size()));
}

bool CsvRewriter::copyCell()
{
    if (m_csv[m_at] == '"')
        return copyQuoted();
    copyPlain();
    return true;
}

bool CsvRewriter::copyQuoted()
{
    const size_t end = behindQuoted(m_csv, m_at);
    if (end == NotFound) {
        m_error =
            PString::translate("ein Anführungszeichen wird nicht geschlossen", "VelkGeomCore");
        return false;
    }
    const std::string_view rest = m_csv.substr(end, 2);
    if (!rest.empty() && rest.front() != m_separator && rest.front() != '\n' && rest != "\r\n") {
        m_error = PString::translate("Text hinter dem schließenden Anführungszeichen einer Zelle",
                                     "VelkGeomCore");
        return false;
    }
    m_out += m_csv.substr(m_at, end - m_at);
    m_at = end;
    return true;
}

void CsvRewriter::copyPlain()
{
    size_t end = m_at;
    while (end < m_csv.size() && m_csv[end] != m_separator && m_csv[end] != '\n')
        ++end;
    const bool hasReturn =
        end > m_at && end < m_csv.size() && m_csv[end] == '\n' && m_csv[end - 1] == '\r';
    end -= hasReturn ? 1 : 0;
    const std::string_view cell = m_csv.substr(m_at, end - m_at);
    const bool hasQuote = cell.find('"') != NotFound;
    if (hasQuote && m_bareQuote.row == 0)
        m_bareQuote = {m_row, m_column};
    if (hasQuote || (m_separator != ',' && cell.find(',') != NotFound))
        VKTab::appendCell(m_out, cell);
    else
        m_out += cell;
    m_at = end;
}

void CsvRewriter::endCell()
{
    if (m_at < m_csv.size() && m_csv[m_at] == m_separator) {
        m_out += ',';
        ++m_column;
        ++m_at;
        return;
    }
    for (; m_at < m_csv.size() && m_csv[m_at] == '\r'; ++m_at)
        m_out += '\r';
    if (m_at < m_csv.size()) {
        m_out += '\n';
        ++m_at;
    }
    ++m_row;
    m_column = 1;
}

} // namespace VelkRelease
