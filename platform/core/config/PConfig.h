#pragma once

#include "PConfigVal.h"

#include <core/text/PRefPtr.h>

/// A configuration: values by section and key. Implementations may be used from any thread.
class VELKCORE_EXPORT PConfig : public PRefObject
{
public:
    PConfig();
    ~PConfig() override;
    PConfig(const PConfig &) = delete;
    PConfig &operator=(const PConfig &) = delete;

    /// The value, or the default if the key, the section or the whole file is missing.
    [[nodiscard]] virtual PConfigVal getItemValue(const QString &key, const QString &section,
                                                  const QString &defaultValue) const = 0;
    /// Stores a value for good. False if it could not be kept: the configuration is read only or
    /// its file could not be written; lastError() says which.
    virtual bool SetValue(const QString &key, const QString &section, const PConfigVal &value) = 0;
    bool SetValue(const QString &key, const QString &section, const QString &value);

    [[nodiscard]] virtual PStringList sections() const = 0;
    [[nodiscard]] virtual PStringList keys(const QString &section) const = 0;
    /// What the last failed operation, reading included, has to say; names file and line.
    [[nodiscard]] virtual PString lastError() const = 0;
};
