#pragma once

#include <geomcore/records/MappingChange.h>
#include <geomcore/table/ContentRef.h>

#include <QString>

namespace VKTab {
class LineId;
}

/// Whether the change concerns one line's assignment.
[[nodiscard]] bool isLineChange(const MappingChange &change);
/// The line's value for LineI::ValueId 3 as text, empty if there is no such line.
[[nodiscard]] QString lineDesignation(const VKTab::ContentRef &table, const VKTab::LineId &line);
/// One line of text for a change that concerns no line; empty for changes that are not told.
[[nodiscard]] QString describeProjectChange(const MappingChange &change);
/// First half of a conflict's message, HTML: what the modeller had planned. \a lineText and
/// \a targetPath name the planned line, \a line tells whether there is one.
[[nodiscard]] QString plannedText(const QString &lineText, const QString &targetPath,
                                  const PrjMappingTargetLineC &line);
/// Second half: what the line is now.
[[nodiscard]] QString currentText(const QString &lineText, const QString &targetPath,
                                  const PrjMappingTargetLineC &line);
