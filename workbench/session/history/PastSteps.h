#pragma once

#include <QString>

class UndoHistory;

/// The steps that former sessions noted in the journals of a mapping file, for undo.
namespace PastSteps {

/// Adds them to \a into, which is empty: those of the release of this source date that were saved
/// into the file, the oldest first, with what was taken back and again; and those of other copies
/// that were merged into it. Of journals that are very long together the newest count. What
/// cannot be read is left out.
void read(const QString &mappingFile, const QString &sourceDate, UndoHistory &into);

} // namespace PastSteps
