#include "LinkDbErpNumbers.h"

#include <core/text/PString.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>

#include <algorithm>

namespace {

constexpr qsizetype mostValues = 500; // in one list of a statement

/// " WHERE ..." for documents with a number that the current group sees.
QString documentsWithNumber(const PLinkDbC &database)
{
    QString condition = QStringLiteral(" WHERE PDMID1 IS NOT NULL AND PDMID1 <> ''");
    const QString group = database.groupInformation(QStringLiteral("PDM_CONDITION"));
    if (!group.isEmpty())
        condition += QStringLiteral(" AND (") + group + u')';
    return condition;
}

std::optional<PLinkDbQueryCacheC> select(PLinkDbC &database, const QString &statement,
                                         QString *error)
{
    const PRefPtr<PLinkDbQueryI> query = database.executeSelectStatement(statement);
    if (query->isValid())
        return PLinkDbQueryCacheC(query);
    if (error)
        *error = database.lastError().text;
    return std::nullopt;
}

QString lineCondition(const QList<VKTab::LineId> &lines)
{
    if (lines.isEmpty() || lines.size() > mostValues)
        return {};
    QStringList numbers;
    numbers.reserve(lines.size());
    for (const VKTab::LineId &line : lines)
        numbers << QString::number(line.value(0));
    return QStringLiteral(" AND LINE_ID IN (") + numbers.join(u',') + u')';
}

} // namespace

LinkDbErpNumbers::LinkDbErpNumbers(const PRefPtr<PLinkDbC> &linkDb)
    : m_linkDb(linkDb)
{
}

PRefPtr<PLinkDbC> LinkDbErpNumbers::database(QString *error) const
{
    const PRefPtr<PLinkDbC> database = m_linkDb ? m_linkDb : PLinkDbC::instance();
    if (database->isOpen())
        return database;
    if (error)
        *error = PString::translate("Es ist keine Linkdatenbank verbunden.", "VelkGeomCore");
    return {};
}

std::optional<ErpNumberSourceI::Numbers>
LinkDbErpNumbers::numbersOf(const QString &catalogPath, const QList<VKTab::LineId> &lines,
                            QString *error)
{
    const PRefPtr<PLinkDbC> linkDb = database(error);
    if (!linkDb)
        return std::nullopt;
    auto rows = select(*linkDb,
                       QStringLiteral("SELECT LINE_ID, LINE_SUBID, PDMID1 FROM ") +
                           linkDb->getTableName(QStringLiteral("PLMTABLE2")) +
                           documentsWithNumber(*linkDb) + QStringLiteral(" AND PRJ_PATH = ") +
                           linkDb->literal(QString(linkDb->makeRelativePath(catalogPath))) +
                           lineCondition(lines),
                       error);
    if (!rows)
        return std::nullopt;
    Numbers numbers;
    while (rows->next())
        numbers[{rows->value(0).toInt(), rows->value(1).toInt()}] << rows->value(2).toString();
    for (QStringList &each : numbers) {
        each.sort();
        each.removeDuplicates();
    }
    const QSet<VKTab::LineId> wanted(lines.begin(), lines.end());
    if (!wanted.isEmpty())
        numbers.removeIf([&](const auto &entry) { return !wanted.contains(entry.key()); });
    return numbers;
}

std::optional<QSet<QString>> LinkDbErpNumbers::projectsWithNumbers(const QStringList &catalogPaths,
                                                                   QString *error)
{
    const PRefPtr<PLinkDbC> linkDb = database(error);
    if (!linkDb)
        return std::nullopt;
    QHash<QString, QString> pathOf; // by the form that the database has
    for (const QString &path : catalogPaths)
        pathOf.insert(linkDb->makeRelativePath(path), path);
    QSet<QString> found;
    const QStringList stored = pathOf.keys();
    for (qsizetype first = 0; first < stored.size(); first += mostValues) {
        QStringList literals;
        for (const QString &path : stored.mid(first, mostValues))
            literals << linkDb->literal(path);
        auto rows = select(*linkDb,
                           QStringLiteral("SELECT DISTINCT PRJ_PATH FROM ") +
                               linkDb->getTableName(QStringLiteral("PLMTABLE2")) +
                               documentsWithNumber(*linkDb) + QStringLiteral(" AND PRJ_PATH IN (") +
                               literals.join(u',') + u')',
                           error);
        if (!rows)
            return std::nullopt;
        while (rows->next())
            found.insert(pathOf.value(rows->value(0).toString()));
    }
    return found;
}

QSet<QString> LinkDbErpNumbers::markedProjects(const QStringList &catalogPaths)
{
    return projectsWithNumbers(catalogPaths, nullptr).value_or(QSet<QString>());
}
