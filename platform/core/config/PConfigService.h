#pragma once

#include "PConfig.h"

/// Finds configurations by name. Any thread.
class VELKCORE_EXPORT PConfigService
{
public:
    /// The configuration in the file NAME.cfg of the first directory that has it, read only and
    /// shared by all callers. Null if no directory has such a file, or for any other type than 0,
    /// the set-up that comes with the installation. Lines that make no sense are told once, in the
    /// log window.
    [[nodiscard]] static PRefPtr<PConfig> getConfig(int type, const QString &name);

    /// Directories in the order of search; they may hold references. "$TORMEVA_SETUP" before the
    /// first call. Configurations found so far are read anew when next asked for.
    static void setDirectories(const PStringList &directories);
    [[nodiscard]] static PStringList directories();
};
