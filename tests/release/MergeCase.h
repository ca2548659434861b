#pragma once

#include <release/merge/MergeTypes.h>

#include <QString>

/// Short texts that stand for records, for tests of merging.
///
/// A release is "PROJECT: TARGET TARGET; PROJECT: ...", a target "path[CONDITION](LINES)", lines
/// "1>11v,2>12c*text", with v confirmed, c to check, nothing assigned by the program, "!" in
/// conflict, "x" for no target line. The target without a path is "-".
namespace MergeCase {

[[nodiscard]] ReleaseMappingC release(const QString &text);
/// The same text again; lines in ascending order.
[[nodiscard]] QString text(const ReleaseMappingC &release);
[[nodiscard]] QString text(const PrjMappingC &mapping);
/// "b>11v", several divided by blanks; "?" for a line that no target knows.
[[nodiscard]] QString text(const VelkRelease::LineStanding &standing);
/// "PROJECT kind ..." of each, in order.
[[nodiscard]] QStringList texts(const QList<VelkRelease::MergeClash> &clashes);
/// "PROJECT type ..." of each, sorted.
[[nodiscard]] QStringList texts(const MappingChangeMap &changes);

} // namespace MergeCase
