#pragma once

#include "PConfig.h"

#include <memory>

class PConfigInstPrivate;

/// A configuration that lies in one file (see PIniFile). May live on the stack as long as no
/// PRefPtr is made of it.
class VELKCORE_EXPORT PConfigInst : public PConfig
{
public:
    /// Opens the file; the path may hold references. With readOnly it is never created nor
    /// changed. A missing file is an empty configuration.
    PConfigInst(const PString &path, bool readOnly);
    ~PConfigInst() override;

    [[nodiscard]] PConfigVal getItemValue(const QString &key, const QString &section,
                                          const QString &defaultValue) const override;
    /// Reads the file anew, so that what others wrote since stays, changes the one key and writes
    /// it in one step. An equal value writes nothing.
    bool SetValue(const QString &key, const QString &section, const PConfigVal &value) override;
    using PConfig::SetValue;
    [[nodiscard]] PStringList sections() const override;
    [[nodiscard]] PStringList keys(const QString &section) const override;
    [[nodiscard]] PString lastError() const override;

    [[nodiscard]] PString path() const;
    [[nodiscard]] bool isReadOnly() const;

private:
    std::unique_ptr<PConfigInstPrivate> d;
};
