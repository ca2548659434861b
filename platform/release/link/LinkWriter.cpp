#include "LinkWriter.h"

#include <QDateTime>

#include <algorithm>

namespace VelkRelease {

namespace {

/// More rows a statement gain nothing, fewer cost. Rows as arrays are much quicker for a server.
constexpr size_t rowsOfStatement = 1000;
constexpr size_t rowsOfArrays = 20'000;
constexpr qsizetype bytesOfRow = 24;
constexpr auto linkColumns = "INSERT INTO linkdb_line_link(project_id, source_line, target_id, "
                             "target_line, extended_text) ";

} // namespace

LinkWriter::LinkWriter(const PRefPtr<PLinkDbC> &linkDb, const std::atomic<bool> &interrupted)
    : m_linkDb(linkDb)
    , m_interrupted(interrupted)
{
}

QString LinkWriter::text(const QString &value) const
{
    return m_linkDb->literal(value);
}

LinkWriter::Outcome LinkWriter::fail()
{
    const LinkDbError error = m_linkDb->lastError();
    m_problem = error.text;
    m_linkDb->rollback();
    return m_interrupted || error.cancelled ? Outcome::Interrupted : Outcome::Failed;
}

LinkWriter::Outcome LinkWriter::compare(const LineLinks &links)
{
    // The number of rows too: somebody may have taken some out by hand.
    const PRefPtr<PLinkDbQueryI> found = m_linkDb->executeSelectStatement(
        QStringLiteral("SELECT fingerprint, (SELECT COUNT(*) FROM linkdb_line_link l "
                       "WHERE l.project_id = p.id) FROM linkdb_link_project p WHERE p.id = %1")
            .arg(links.id));
    if (!found->isValid()) {
        m_problem = m_linkDb->lastError().text;
        return Outcome::Failed;
    }
    const bool same = found->rowCount() == 1 &&
                      found->row(0).at(0).toString() == links.fingerprint &&
                      found->row(0).at(1).toLongLong() == qint64(links.links.size());
    return same || (found->rowCount() == 0 && links.links.empty()) ? Outcome::Unchanged
                                                                   : Outcome::Written;
}

bool LinkWriter::isServer() const
{
    return m_linkDb->settings().kind == LinkDbSettings::Kind::PostgreSQL;
}

bool LinkWriter::lock(const LineLinks &links)
{
    // Of a file the whole is locked by whoever changes anything.
    return m_linkDb->executeInsertStatement(
        isServer() ? QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(links.id)
                   : QStringLiteral("UPDATE linkdb_link_project SET links = links WHERE id = %1")
                         .arg(links.id));
}

/// What stands before the links: targets, and the project's row instead of what is there of it.
QStringList LinkWriter::headStatements(const LineLinks &links) const
{
    QStringList statements;
    if (!links.targets.empty())
        statements.append(targetStatement(links));
    statements.append(
        QStringLiteral("DELETE FROM linkdb_line_link WHERE project_id = %1").arg(links.id));
    statements.append(
        QStringLiteral("DELETE FROM linkdb_link_project WHERE id = %1").arg(links.id));
    if (links.links.empty())
        return statements;
    const QStringList values{
        QString::number(links.id),
        text(links.releaseDate),
        text(links.path),
        text(links.version),
        text(links.tableVersion),
        text(links.fingerprint),
        QString::number(links.links.size()),
        text(QDateTime::currentDateTimeUtc().toString(Qt::ISODate)),
        text(m_linkDb->userName()),
    };
    statements.append(
        QStringLiteral("INSERT INTO linkdb_link_project(id, release_date, source_path, "
                       "source_version, source_table_version, fingerprint, links, written_at, "
                       "user_name) VALUES(") +
        values.join(QLatin1String(", ")) + u')');
    return statements;
}

/// In the order of their ids, or two writers could wait for each other's.
QString LinkWriter::targetStatement(const LineLinks &links) const
{
    QStringList rows;
    rows.reserve(qsizetype(links.targets.size()));
    for (const LineLinks::Target &target : links.targets) {
        rows.append(u'(' +
                    QStringList{QString::number(target.id), text(target.path), text(target.version),
                                text(target.tableVersion), text(links.targetDate)}
                        .join(QLatin1String(", ")) +
                    u')');
    }
    return QStringLiteral("INSERT INTO linkdb_link_target(id, target_path, target_version, "
                          "target_table_version, target_date) VALUES ") +
           rows.join(QLatin1String(", ")) + QStringLiteral(" ON CONFLICT (id) DO NOTHING");
}

/// Links \a first to before \a end as rows.
QString LinkWriter::rowStatement(const LineLinks &links, size_t first, size_t end) const
{
    const QString project = QString::number(links.id);
    QString statement = linkColumns + QStringLiteral("VALUES ");
    statement.reserve(statement.size() + qsizetype(end - first) * bytesOfRow * 3);
    for (size_t i = first; i < end; ++i) {
        const LineLinks::Link &link = links.links[i];
        if (i > first)
            statement += u',';
        statement += u'(' + project + u',' + QString::number(link.sourceLine) + u',';
        statement += link.target < 0 ? QStringLiteral("NULL,NULL,")
                                     : QString::number(links.targets[size_t(link.target)].id) +
                                           u',' + QString::number(link.targetLine) + u',';
        statement += link.extended.isEmpty() ? QStringLiteral("NULL)") : text(link.extended) + u')';
    }
    return statement;
}

/// The same as an array for each column. Targets are told by their place among the project's.
QString LinkWriter::arrayStatement(const LineLinks &links, size_t first, size_t end) const
{
    QStringList ids{QStringLiteral("NULL")};
    for (const LineLinks::Target &target : links.targets)
        ids.append(QString::number(target.id));
    QString lines;
    QString targets;
    QString targetLines;
    QString texts;
    for (QString *const list : {&lines, &targets, &targetLines})
        list->reserve(qsizetype(end - first) * bytesOfRow / 2);
    const auto hasText = [](const LineLinks::Link &link) {
        return !link.extended.isEmpty();
    };
    const bool hasTexts = std::any_of(links.links.begin() + qsizetype(first),
                                      links.links.begin() + qsizetype(end), hasText);
    for (size_t i = first; i < end; ++i) {
        const LineLinks::Link &link = links.links[i];
        const QLatin1String comma(i > first ? "," : "");
        lines += comma + QString::number(link.sourceLine);
        targets += comma + QString::number(link.target + 2);
        targetLines +=
            comma + (link.target < 0 ? QStringLiteral("NULL") : QString::number(link.targetLine));
        if (hasTexts)
            texts += comma + (hasText(link) ? text(link.extended) : QStringLiteral("NULL"));
    }
    const QString columns = QStringLiteral("'{%1}'::int[], '{%2}'::int[], '{%3}'::int[]")
                                .arg(lines, targets, targetLines);
    const QString names = QStringLiteral("AS l(line, target, target_line%1)")
                              .arg(QLatin1String(hasTexts ? ", extended_text" : ""));
    return linkColumns + QStringLiteral("SELECT %1, l.line, (ARRAY[").arg(links.id) +
           ids.join(u',') + QStringLiteral("]::bigint[])[l.target], l.target_line, ") +
           (hasTexts ? QStringLiteral("l.extended_text") : QStringLiteral("NULL")) +
           QStringLiteral(" FROM unnest(") + columns +
           (hasTexts ? QStringLiteral(", ARRAY[") + texts + QStringLiteral("]::text[]")
                     : QString()) +
           QStringLiteral(") ") + names;
}

bool LinkWriter::writeAll(const LineLinks &links)
{
    QStringList statements = headStatements(links);
    const size_t step = isServer() ? rowsOfArrays : rowsOfStatement;
    for (size_t first = 0; first < links.links.size() || !statements.isEmpty(); first += step) {
        if (m_interrupted)
            return false;
        const size_t end = std::min(first + step, links.links.size());
        if (first < end)
            statements.append(isServer() ? arrayStatement(links, first, end)
                                         : rowStatement(links, first, end));
        // A server takes them in one go, each of its own would wait for its answer.
        if (isServer())
            statements = {statements.join(QLatin1String("; "))};
        for (const QString &statement : std::as_const(statements)) {
            if (!m_linkDb->executeInsertStatement(statement))
                return false;
        }
        statements.clear();
    }
    return true;
}

LinkWriter::Outcome LinkWriter::tryToWrite(const LineLinks &links)
{
    const Outcome before = compare(links);
    if (before != Outcome::Written)
        return before;
    if (!lock(links))
        return fail();
    // Somebody else may have written it until the lock was given.
    const Outcome now = compare(links);
    if (now != Outcome::Written) {
        m_linkDb->rollback();
        return now;
    }
    return writeAll(links) && m_linkDb->commit() ? Outcome::Written : fail();
}

LinkWriter::Outcome LinkWriter::write(const LineLinks &links)
{
    m_problem.clear();
    const Outcome outcome = tryToWrite(links);
    return outcome == Outcome::Failed && m_linkDb->lastError().lost ? tryToWrite(links) : outcome;
}

} // namespace VelkRelease
