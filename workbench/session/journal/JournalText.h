#pragma once

#include <core/json/PJsonValue.h>
#include <geomcore/records/AgreedReplacement.h>
#include <workbench/session/change/MappingDifference.h>

#include <QByteArray>

#include <optional>

/// The text form of what a journal holds.
namespace JournalText {

/// A record of kind "change".
[[nodiscard]] QByteArray writeChange(const MappingDifference &difference, int step);
/// Nothing if the record is not of that form.
[[nodiscard]] std::optional<MappingDifference> readChange(const PJsonValue &record);

/// A text row for each field of a replacement, in their order.
[[nodiscard]] PJsonValue writeReplacements(const QList<AgreedReplacement> &replacements);
/// What is not of that form is left out.
[[nodiscard]] QList<AgreedReplacement> readReplacements(const PJsonValue &list);

} // namespace JournalText
