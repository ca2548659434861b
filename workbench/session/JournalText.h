#pragma once

#include "MappingDifference.h"

#include <QByteArray>

#include <optional>

/// The text form of what a journal holds.
namespace JournalText {

/// A record of kind "change".
[[nodiscard]] QByteArray writeChange(const MappingDifference &difference, int step);
/// Nothing if the record is not of that form.
[[nodiscard]] std::optional<MappingDifference> readChange(const PJsonValue &record);

} // namespace JournalText
