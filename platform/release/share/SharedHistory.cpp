#include "SharedHistory.h"

#include "SharedPlace.h"

#include <release/history/DecisionHistory.h>

namespace VelkRelease {

namespace {

constexpr QLatin1String historyEnding(".verlauf");

} // namespace

void SharedHistory::publish(SharedPlace &place, const QString &mappingFile, const QString &name)
{
    QString error;
    const QByteArray rows = DecisionHistory::ownRows(mappingFile, &error);
    if (!rows.isEmpty())
        static_cast<void>(place.writeNote(name + historyEnding, rows));
}

void SharedHistory::take(const SharedPlace &place, const QString &mappingFile)
{
    QString error;
    const QStringList files = place.noteFiles(historyEnding);
    for (const QString &file : files)
        static_cast<void>(DecisionHistory::adoptFiles({file}, mappingFile, &error));
}

} // namespace VelkRelease
