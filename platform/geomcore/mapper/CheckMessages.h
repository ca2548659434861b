#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <string_view>

namespace Mapper::CheckMessages {

// Messages of a check, translated. Details stand on rows of their own that begin with blanks.

[[nodiscard]] QString difference(const QString &variable, std::string_view oldValue,
                                 std::string_view newValue);
[[nodiscard]] QString nothingInCommon();
[[nodiscard]] QString equalTargetLines(const QList<int> &lines);
[[nodiscard]] QString equalSourceLines(const QList<int> &lines);
[[nodiscard]] QString equalElsewhere(const QString &project, int line);
[[nodiscard]] QString tooLittleCompared(const QStringList &variables);
[[nodiscard]] QString otherProject(const QString &source, const QString &target);
[[nodiscard]] QString reworkedTable(const QString &project);
[[nodiscard]] QString proposedRules();
[[nodiscard]] QString otherDesignation(std::string_view oldText, std::string_view newText);
[[nodiscard]] QString failedCondition(const QString &condition);
[[nodiscard]] QString faultyCondition(const QString &condition);
[[nodiscard]] QString dividedLine();
[[nodiscard]] QString tooManyOverlap();
/// -1 for several lines.
[[nodiscard]] QString confirmedForOther(int sourceLine);
[[nodiscard]] QString noTable(const QString &project);
[[nodiscard]] QString noLine(const QString &project, int line);

} // namespace Mapper::CheckMessages
