#include "CsvScan.h"

#include "ByteMasks.h"
#include "CsvCells.h"
#include "Utf8Check.h"
#include <core/text/countText.h>
#include <core/text/PString.h>
#include <geomcore/value/CellKey.h>

#include <charconv>

namespace VKTab {

CsvScan::CsvScan(std::string_view bytes, quint64 begin, int columnCount, const QString &file)
    : m_bytes(bytes)
    , m_at(begin)
    , m_rowBegin(begin)
    , m_checked(begin)
    , m_columnCount(columnCount)
    , m_file(file)
{
}

void CsvScan::setIdColumns(int number, int subNumber)
{
    m_idColumn = number;
    m_subIdColumn = subNumber;
}

CsvScan CsvScan::part(quint64 begin, quint64 end) const
{
    CsvScan part(m_bytes.substr(0, end), begin, m_columnCount, m_file);
    part.setIdColumns(m_idColumn, m_subIdColumn);
    return part;
}

std::string_view CsvScan::rowBytes(std::string_view bytes, quint64 begin, quint64 next)
{
    quint64 end = next - 1;
    if (end > begin && bytes[end - 1] == '\r')
        --end;
    return bytes.substr(begin, end - begin);
}

bool CsvScan::run()
{
    rows.reserve((m_bytes.size() - m_at) / 64 + 2);
    while (m_at < m_bytes.size() && !m_stop) {
        const quint64 left = m_bytes.size() - m_at;
        if (left >= 64) {
            scanBlock(masksOf(m_bytes.data() + m_at), 64);
        } else {
            char tail[64] = {};
            std::memcpy(tail, m_bytes.data() + m_at, left);
            scanBlock(masksOf(tail), int(left));
        }
    }
    if (!m_stop && m_rowBegin < m_bytes.size())
        endRow(m_bytes.size());
    rows.push_back(m_rowBegin);
    return errors.isEmpty();
}

void CsvScan::scanBlock(const ByteMasks &masks, int length)
{
    const int toQuote = masks.quotes ? std::countr_zero(masks.quotes) : 65;
    length = std::min(length, toQuote);
    const quint64 high = masks.high & lowBits(length);
    const int good = high ? wellFormed(high, length) : length;
    countCells(masks.commas, masks.lineFeeds, good);
    m_at += quint64(good);
    if (good < length) [[unlikely]] {
        error(m_commas + 1,
              PString::translate("die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8",
                                 "VelkGeomCore"));
        m_stop = true;
    } else if (length == toQuote && !m_stop) [[unlikely]] {
        scanQuoted();
    }
}

void CsvScan::countCells(quint64 commas, quint64 lineFeeds, int length)
{
    commas &= lowBits(length);
    for (lineFeeds &= lowBits(length); lineFeeds; lineFeeds &= lineFeeds - 1) {
        const int bit = std::countr_zero(lineFeeds);
        const quint64 before = lowBits(bit);
        m_commas += bitCount(commas & before);
        commas &= ~before;
        endRow(m_at + quint64(bit));
    }
    m_commas += bitCount(commas);
}

void CsvScan::scanQuoted()
{
    if (m_at != m_rowBegin && m_bytes[m_at - 1] != ',') {
        error(m_commas + 1,
              PString::translate(
                  "ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie "
                  "die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin",
                  "VelkGeomCore"));
        m_stop = true;
        return;
    }
    const char *const begin = m_bytes.data() + m_at;
    const char *const limit = m_bytes.data() + m_bytes.size();
    const char *const end = endOfQuoted(begin, limit);
    if (!end) {
        error(m_commas + 1,
              PString::translate("ein Anführungszeichen wird nicht geschlossen", "VelkGeomCore"));
        m_stop = true;
        return;
    }
    const char *bad = nullptr;
    if (!checkUtf8(begin, end, limit, &bad))
        error(m_commas + 1,
              PString::translate("die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8",
                                 "VelkGeomCore"));
    const bool ends = end == limit || *end == ',' || *end == '\n' ||
                      (*end == '\r' && (end + 1 == limit || end[1] == '\n'));
    if (!ends) {
        error(m_commas + 1,
              PString::translate("Text hinter dem schließenden Anführungszeichen einer Zelle",
                                 "VelkGeomCore"));
        m_stop = true;
    }
    m_quoteBit = QuoteBit;
    m_at = quint64(end - m_bytes.data());
}

void CsvScan::endRow(quint64 lineFeed)
{
    if (rows.size() >= size_t(INT_MAX) - 2) {
        error(0, PString::translate("mehr Zeilen, als eine Tabelle fassen kann", "VelkGeomCore"));
        m_stop = true;
        return;
    }
    rows.push_back(m_rowBegin | m_quoteBit);
    if (m_commas + 1 != m_columnCount) [[unlikely]]
        wrongCellCount();
    else if (m_idColumn >= 0)
        readIds(rowBytes(m_bytes, m_rowBegin, lineFeed + 1));
    m_rowBegin = lineFeed + 1;
    m_commas = 0;
    m_quoteBit = 0;
}

void CsvScan::readIds(std::string_view row)
{
    numbers.push_back(readId(row, m_idColumn));
    if (m_subIdColumn >= 0)
        subNumbers.push_back(readId(row, m_subIdColumn));
}

int CsvScan::readId(std::string_view row, int column)
{
    std::string_view cell;
    std::string scratch;
    if (m_quoteBit || (column != 0 && column + 1 != m_columnCount)) {
        m_idCells.resize(size_t(column) + 1);
        splitQuoted(row, m_idCells, scratch);
        cell = m_idCells.back();
    } else if (column == 0) {
        cell = row.substr(0, row.find(','));
    } else {
        cell = row.substr(row.rfind(',') + 1);
    }
    cell = trimmedCell(cell);
    int id = -1;
    const auto [end, problem] = std::from_chars(cell.data(), cell.data() + cell.size(), id);
    if (problem == std::errc() && end == cell.data() + cell.size() && id >= 0)
        return id;
    error(column + 1, PString::translate(
                          "„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647",
                          "VelkGeomCore")
                          .arg(QString::fromUtf8(cell.data(), qsizetype(cell.size()))));
    return -1;
}

int CsvScan::wellFormed(quint64 high, int length)
{
    const char *const block = m_bytes.data() + m_at;
    const char *first = std::max(block + std::countr_zero(high), m_bytes.data() + m_checked);
    const char *bad = nullptr;
    const char *done = checkUtf8(first, block + length, m_bytes.data() + m_bytes.size(), &bad);
    if (!done)
        return int(bad - block);
    m_checked = quint64(done - m_bytes.data());
    return length;
}

void CsvScan::wrongCellCount()
{
    const int found = m_commas + 1;
    error(std::min(found, m_columnCount) + 1,
          translateCount("%Ln Zelle(n) statt %1 wie in der Kopfzeile", "VelkGeomCore", found)
              .arg(countText(m_columnCount)));
}

void CsvScan::error(int column, const QString &text)
{
    // The header is row 1, and a row that has just ended is the last of rows.
    const bool ended = !rows.empty() && (rows.back() & ~QuoteBit) == m_rowBegin;
    errors.append({m_file, int(rows.size()) + (ended ? 1 : 2), column, text});
    m_stop = m_stop || errors.size() >= MaxErrors;
}

} // namespace VKTab
