#pragma once

#include <core/VelkCoreGlobal.h>

#include <chrono>

class QLockFile;

/// Lock files whose makers may be killed at any moment.
namespace LockFile {

/// Takes a lock as QLockFile::tryLock does, and besides one whose file names nobody: that is left
/// if its maker is killed between making it and writing himself into it, and no age tells it from
/// one that is held. Waits a second longer for such a one. If it fails the lock's error() tells.
[[nodiscard]] VELKCORE_EXPORT bool take(QLockFile &lock, std::chrono::milliseconds wait);

} // namespace LockFile
