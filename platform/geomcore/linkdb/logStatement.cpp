#include "logStatement.h"

#include <core/logging/StaticLogger.h>

namespace {

constexpr int level = 5000;
constexpr int notInitialised = -2;

/// A logger record that is released with the library.
struct OwnedRecord
{
    OwnedRecord() = default;
    ~OwnedRecord() { StaticLogger::release(record); }
    Q_DISABLE_COPY_MOVE(OwnedRecord)

    StaticLoggerRecord record{"tormeva.libs.VelkGeomCore.linkdb"};
};

OwnedRecord statements;

} // namespace

void logStatement(const QString &sql)
{
    StaticLoggerRecord &record = statements.record;
    if (record.level == notInitialised)
        StaticLogger::init(record);
    if (record.level <= level)
        StaticLogger::log(level, __FILE__, Q_FUNC_INFO, __LINE__, sql);
}
