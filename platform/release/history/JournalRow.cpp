#include "JournalRow.h"

#include <charconv>
#include <zlib.h>

namespace VelkRelease {

namespace {

constexpr qsizetype checksumDigits = 8;

} // namespace

quint32 JournalRow::checksum(QByteArrayView bytes)
{
    return quint32(crc32_z(0, reinterpret_cast<const Bytef *>(bytes.data()), size_t(bytes.size())));
}

QByteArray JournalRow::frame(QByteArrayView record)
{
    QByteArray row = QByteArray::number(checksum(record), 16).rightJustified(checksumDigits, '0');
    row.reserve(record.size() + checksumDigits + 2);
    row += ' ';
    row += record;
    row += '\n';
    return row;
}

std::optional<QByteArrayView> JournalRow::unframe(QByteArrayView row)
{
    if (row.size() < checksumDigits + 1 || row[checksumDigits] != ' ')
        return std::nullopt;
    quint32 noted = 0;
    const auto [end, code] = std::from_chars(row.data(), row.data() + checksumDigits, noted, 16);
    const QByteArrayView record = row.sliced(checksumDigits + 1);
    if (code != std::errc() || end != row.data() + checksumDigits || checksum(record) != noted)
        return std::nullopt;
    return record;
}

} // namespace VelkRelease
