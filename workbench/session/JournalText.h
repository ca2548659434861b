#pragma once

#include "MappingDifference.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The text form of what a journal holds.
namespace JournalText {

/// CRC-32 (IEEE 802.3, as in zlib and PNG) of the bytes.
[[nodiscard]] quint32 checksum(QByteArrayView bytes);
/// The row of a record: checksum in eight hexadecimal digits, a blank, the record, a line feed. The
/// record itself must hold no line feed.
[[nodiscard]] QByteArray frame(QByteArrayView record);
/// The record of a row without its line feed; nothing if it is not whole.
[[nodiscard]] std::optional<QByteArrayView> unframe(QByteArrayView row);

/// A record of kind "change".
[[nodiscard]] QByteArray writeChange(const MappingDifference &difference, int step);
/// Nothing if the record is not of that form.
[[nodiscard]] std::optional<MappingDifference> readChange(const PJsonValue &record);

} // namespace JournalText
