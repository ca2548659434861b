#include "StaticLogger.h"

#include <core/config/PConfigService.h>

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMutex>

#include <cstdio>
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
    QMutex outputMutex;
    StaticLogger::Output output;
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

void writeToStandardError(const StaticLogger::Entry &entry)
{
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    const QString text = QStringLiteral("%1 %2 %3:%4 %5: %6\n")
                             .arg(now, QString::number(entry.level), entry.file,
                                  QString::number(entry.line), entry.function, entry.message);
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

void StaticLogger::init(StaticLoggerRecord &record)
{
    Logger &all = logger();
    QMutexLocker lock(&all.mutex);
    if (!all.levelsKnown) {
        lock.unlock();
        const Levels levels = configuredLevels(); // may issue messages, so without the lock
        lock.relock();
        if (!all.levelsKnown)
            all.levels = levels;
        all.levelsKnown = true;
    }
    record.level = levelOf(QString::fromUtf8(record.category), all.levels);
    if (!all.records.contains(&record))
        all.records.append(&record);
}

void StaticLogger::log(int level, const char *file, const char *function, int line,
                       const QString &message)
{
    const Entry entry{level, QString::fromUtf8(file), QString::fromUtf8(function), line, message};
    const QMutexLocker lock(&logger().outputMutex);
    if (logger().output)
        logger().output(entry);
    else
        writeToStandardError(entry);
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

void StaticLogger::setOutput(Output output)
{
    const QMutexLocker lock(&logger().outputMutex);
    logger().output = std::move(output);
}
