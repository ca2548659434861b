#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The row of a record in a journal: its checksum in eight hexadecimal digits, a blank, the record,
/// a line feed.
namespace VelkRelease::JournalRow {

/// CRC-32 (IEEE 802.3, as in zlib and PNG) of the bytes.
[[nodiscard]] VELKRELEASE_EXPORT quint32 checksum(QByteArrayView bytes);
/// The record itself must hold no line feed.
[[nodiscard]] VELKRELEASE_EXPORT QByteArray frame(QByteArrayView record);
/// The record of a row without its line feed; nothing if it is not whole.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<QByteArrayView> unframe(QByteArrayView row);

} // namespace VelkRelease::JournalRow
