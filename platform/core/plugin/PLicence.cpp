#include "PLicence.h"

#include <QMutex>

namespace {

using Query = std::function<bool(const QString &)>;

QMutex s_mutex;

Query &query()
{
    static Query instance;
    return instance;
}

} // namespace

bool PLicence::isLicensed(const QString &feature)
{
    QMutexLocker lock(&s_mutex);
    const Query current = query();
    lock.unlock();
    return !current || current(feature);
}

void PLicence::setQuery(std::function<bool(const QString &feature)> newQuery)
{
    const QMutexLocker lock(&s_mutex);
    query() = std::move(newQuery);
}
