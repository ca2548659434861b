#pragma once

#include <QString>

namespace VelkRelease {

class SharedPlace;

/// Who decided what, carried between the modellers who share a mapping file: each one's decisions
/// are a note at the shared place. Nothing depends on it, so it may fail without a word.
namespace SharedHistory {

/// \a name is the one of this modeller's notes, without an ending.
void publish(SharedPlace &place, const QString &mappingFile, const QString &name);
/// Into the mapping file's history, from all notes that are there.
void take(const SharedPlace &place, const QString &mappingFile);

} // namespace SharedHistory

} // namespace VelkRelease
