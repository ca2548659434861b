#include "StaticLogger.h"

#include <core/config/PConfigService.h>

#include <QDebug>
#include <QHash>
#include <QList>
#include <QLoggingCategory>
#include <QMutex>

#include <limits>

namespace {

/// Levels by category name.
using Levels = QHash<QString, int>;

struct Logger
{
    QMutex mutex;
    QList<StaticLoggerRecord *> records;
    bool levelsKnown = false;
    Levels levels;
};

/// Never destroyed: libraries release their records at the very end of the process.
Logger &logger()
{
    static auto *const instance = new Logger;
    return *instance;
}

/// -2 and below mean something else for a record.
int levelFromText(const QString &text)
{
    bool ok = false;
    const int level = text.trimmed().toInt(&ok);
    return ok ? qBound(0, level, std::numeric_limits<int>::max()) : StaticLogger::Silent;
}

Levels levelsFromText(const QString &text)
{
    Levels levels;
    for (const QString &entry : text.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype equals = entry.indexOf(u'=');
        if (equals > 0)
            levels.insert(entry.left(equals).trimmed(), levelFromText(entry.mid(equals + 1)));
    }
    return levels;
}

Levels levelsFromConfiguration()
{
    Levels levels;
    const QString section = QStringLiteral("Levels");
    if (const PRefPtr<PConfig> config = PConfigService::getConfig(0, QStringLiteral("logging"))) {
        for (const QString &category : config->keys(section))
            levels.insert(category,
                          levelFromText(config->getItemValue(category, section, {}).GetString()));
    }
    return levels;
}

/// The environment counts more than the configuration.
Levels configuredLevels()
{
    Levels levels = levelsFromConfiguration();
    levels.insert(levelsFromText(qEnvironmentVariable("VELK_LOG_LEVELS")));
    return levels;
}

/// Of the category itself, what it lies below, and all.
int levelOf(const QString &category, const Levels &levels)
{
    for (QString name = category; !name.isEmpty(); name.truncate(qMax(name.lastIndexOf(u'.'), 0))) {
        if (const auto found = levels.constFind(name); found != levels.cend())
            return *found;
    }
    return levels.value(QStringLiteral("*"), StaticLogger::Silent);
}

bool levelsAreKnown()
{
    const QMutexLocker lock(&logger().mutex);
    return logger().levelsKnown;
}

void takeFirstLevels(const Levels &levels)
{
    Logger &all = logger();
    const QMutexLocker lock(&all.mutex);
    if (!all.levelsKnown)
        all.levels = levels;
    all.levelsKnown = true;
}

/// Never destroyed, as the logger.
const QLoggingCategory &category()
{
    static auto *const instance = new QLoggingCategory("velk", QtDebugMsg);
    return *instance;
}

} // namespace

void StaticLogger::init(StaticLoggerRecord &record)
{
    if (!levelsAreKnown())
        takeFirstLevels(configuredLevels()); // may issue messages, so without the lock
    Logger &all = logger();
    const QMutexLocker lock(&all.mutex);
    record.level = levelOf(QString::fromUtf8(record.category), all.levels);
    if (!all.records.contains(&record))
        all.records.append(&record);
}

void StaticLogger::log(int level, const char *file, const char *function, int line,
                       const QString &message)
{
    if (category().isDebugEnabled())
        QMessageLogger(file, line, function, category().categoryName()).debug().noquote().nospace()
            << level << ' ' << message;
}

void StaticLogger::release(StaticLoggerRecord &record)
{
    const QMutexLocker lock(&logger().mutex);
    logger().records.removeOne(&record);
    record.level = -2;
}

void StaticLogger::setLevels(const QString &levels)
{
    Logger &all = logger();
    const QMutexLocker lock(&all.mutex);
    all.levels = levelsFromText(levels);
    all.levelsKnown = true;
    for (StaticLoggerRecord *record : std::as_const(all.records))
        record->level = levelOf(QString::fromUtf8(record->category), all.levels);
}
