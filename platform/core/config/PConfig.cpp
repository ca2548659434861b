#include "PConfig.h"

PConfig::PConfig() = default;
PConfig::~PConfig() = default;

bool PConfig::SetValue(const QString &key, const QString &section, const QString &value)
{
    return SetValue(key, section, PConfigVal(value));
}
