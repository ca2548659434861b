#include "logStatement.h"

#include <core/logging/StaticLogger.h>

namespace {

constexpr int statementLevel = 5000;
constexpr int levelNotRead = -2;

/// A logger record that is released with the library.
struct StatementRecord
{
    StatementRecord() = default;
    ~StatementRecord() { StaticLogger::release(record); }
    Q_DISABLE_COPY_MOVE(StatementRecord)

    StaticLoggerRecord record{"tormeva.libs.VelkGeomCore.linkdb"};
};

StatementRecord statementRecord;

} // namespace

void logStatement(const QString &sql)
{
    StaticLoggerRecord &record = statementRecord.record;
    if (record.level == levelNotRead)
        StaticLogger::init(record);
    if (record.level <= statementLevel)
        StaticLogger::log(statementLevel, __FILE__, Q_FUNC_INFO, __LINE__, sql);
}
