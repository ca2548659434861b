#include "SampleRoad.h"

#include "CsvFolder.h"

#include <geomcore/records/MappingFile.h>
#include <tools/velkmap/Commands.h>

#include <QDir>
#include <QTextStream>

namespace {

using velkmap::ExitStatus;

/// Empty, or what the command printed if it ended with another status than this one.
QString failure(const QStringList &arguments, bool mayBeIncomplete = false)
{
    QString printed;
    QTextStream out(&printed);
    QTextStream err(&printed);
    const ExitStatus status = velkmap::run(arguments, out, err);
    if (status == ExitStatus::Done || (mayBeIncomplete && status == ExitStatus::InputUnreadable))
        return {};
    return arguments.join(' ') + '\n' + printed;
}

QString import(const QString &tables, const QString &root, const QString &date)
{
    return failure({"import", "--from", tables, "--into", root + "/catalog", "--date", date});
}

} // namespace

QString SampleRoad::workTemplate()
{
    return QDir::tempPath() + "/velkroad-XXXXXX";
}

SampleRoad SampleRoad::run(const QString &oldTables, const QString &newTables, Columns columns,
                           const QString &workDirectory)
{
    SampleRoad road;
    const QDir work(workDirectory);
    QString tables[] = {oldTables, newTables};
    const QString roots[] = {work.filePath("old"), work.filePath("new")};
    const QString dates[] = {"2021-12-31T12:00:00Z", "2026-06-30T12:00:00Z"};
    for (int i = 0; i < 2 && road.error.isEmpty(); ++i) {
        if (columns == Columns::WithoutFirst) {
            const QString copy = work.filePath(i == 0 ? "oldtables" : "newtables");
            if (!copyWithoutFirstColumns(tables[i], copy))
                road.error = "cannot copy " + tables[i];
            tables[i] = copy;
        }
        if (road.error.isEmpty())
            road.error = import(tables[i], roots[i], dates[i]);
    }
    if (!road.error.isEmpty())
        return road;
    return run(roots[0], roots[1], "catalog", work.filePath("mapping.json"));
}

SampleRoad SampleRoad::run(const QString &oldRoot, const QString &newRoot, const QString &catalog,
                           const QString &mappingFile)
{
    SampleRoad road;
    road.error = failure({"create", "--source", oldRoot, "--target", newRoot, "--catalog", catalog,
                          "--mapping", mappingFile},
                         true);
    if (road.error.isEmpty()) {
        road.error = failure(
            {"assign", "--mapping", mappingFile, "--source", oldRoot, "--target", newRoot}, true);
    }
    MappingFile file;
    if (road.error.isEmpty() && file.read(mappingFile, QString(), &road.error) &&
        !file.releases().isEmpty())
        road.release = file.releases().constLast();
    return road;
}
