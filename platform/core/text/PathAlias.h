#pragma once

#include "PString.h"

/// Directories that stand for the begin of paths, such as "$TORMEVA_DATA/23d-libs", instead of what
/// the environment gives. PPathName resolves by them. Every operation may be called on any thread.
class VELKCORE_EXPORT PathAlias
{
public:
    /// Replaces the one that \a begin had; an empty directory takes it back.
    static void set(const QString &begin, const QString &directory);
    /// The path with a begin that has a directory replaced by it; only whole components count.
    [[nodiscard]] static PString replacedIn(const PString &path);
};
