#include "Loggers.h"

namespace {

constexpr int onlyLevel = 5000;
constexpr int notInitialised = -2;

} // namespace

void logPlmDocuments(const char *function, int line, const QString &message)
{
    StaticLoggerRecord &record = plmDocumentsLogger();
    if (record.level == notInitialised)
        StaticLogger::init(record);
    if (record.level <= onlyLevel)
        StaticLogger::log(onlyLevel, "linkdbgui\\DocumentListDialog", function, line, message);
}
