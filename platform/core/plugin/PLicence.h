#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <functional>

/// Asks whether a feature may be used, such as "LINKDB". Any thread.
class VELKCORE_EXPORT PLicence
{
public:
    /// Yes unless the host has set a query that says no.
    [[nodiscard]] static bool isLicensed(const QString &feature);
    /// Empty brings back the default. It may be called on any thread.
    static void setQuery(std::function<bool(const QString &feature)> newQuery);
};
