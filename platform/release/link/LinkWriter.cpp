#include "LinkWriter.h"

#include <QDateTime>

namespace VelkRelease {

namespace {

/// More rows a statement gain nothing, fewer cost.
constexpr size_t rowsOfStatement = 1000;
constexpr qsizetype bytesOfRow = 24;

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

bool LinkWriter::lock(const LineLinks &links)
{
    // Of a file the whole is locked by whoever changes anything.
    return m_linkDb->executeInsertStatement(
        m_linkDb->settings().kind == LinkDbSettings::Kind::PostgreSQL
            ? QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(links.id)
            : QStringLiteral("UPDATE linkdb_link_project SET links = links WHERE id = %1")
                  .arg(links.id));
}

bool LinkWriter::clear(const LineLinks &links)
{
    return m_linkDb->executeInsertStatement(
               QStringLiteral("DELETE FROM linkdb_line_link WHERE project_id = %1")
                   .arg(links.id)) &&
           m_linkDb->executeInsertStatement(
               QStringLiteral("DELETE FROM linkdb_link_project WHERE id = %1").arg(links.id));
}

bool LinkWriter::writeHead(const LineLinks &links)
{
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
    return m_linkDb->executeInsertStatement(
        QStringLiteral("INSERT INTO linkdb_link_project(id, release_date, source_path, "
                       "source_version, source_table_version, fingerprint, links, written_at, "
                       "user_name) VALUES(") +
        values.join(QLatin1String(", ")) + u')');
}

/// In the order of their ids, or two writers could wait for each other's.
bool LinkWriter::writeTargets(const LineLinks &links)
{
    if (links.targets.empty())
        return true;
    QStringList rows;
    rows.reserve(qsizetype(links.targets.size()));
    for (const LineLinks::Target &target : links.targets) {
        rows.append(u'(' +
                    QStringList{QString::number(target.id), text(target.path), text(target.version),
                                text(target.tableVersion), text(links.targetDate)}
                        .join(QLatin1String(", ")) +
                    u')');
    }
    return m_linkDb->executeInsertStatement(
        QStringLiteral("INSERT INTO linkdb_link_target(id, target_path, target_version, "
                       "target_table_version, target_date) VALUES ") +
        rows.join(QLatin1String(", ")) + QStringLiteral(" ON CONFLICT (id) DO NOTHING"));
}

bool LinkWriter::writeLinks(const LineLinks &links)
{
    const QString project = QString::number(links.id);
    std::vector<QString> targets;
    targets.reserve(links.targets.size());
    for (const LineLinks::Target &target : links.targets)
        targets.push_back(QString::number(target.id));
    const QString noSuccessor = QStringLiteral("NULL,NULL,");
    const QString noText = QStringLiteral("NULL)");
    for (size_t first = 0; first < links.links.size(); first += rowsOfStatement) {
        if (m_interrupted)
            return false;
        QString statement = QStringLiteral("INSERT INTO linkdb_line_link(project_id, source_line, "
                                           "target_id, target_line, extended_text) VALUES ");
        const size_t end = std::min(first + rowsOfStatement, links.links.size());
        statement.reserve(statement.size() + qsizetype(end - first) * bytesOfRow * 3);
        for (size_t i = first; i < end; ++i) {
            const LineLinks::Link &link = links.links[i];
            statement += i == first ? u'(' : u',';
            if (i > first)
                statement += u'(';
            statement += project + u',' + QString::number(link.sourceLine) + u',';
            statement += link.target < 0 ? noSuccessor
                                         : targets[size_t(link.target)] + u',' +
                                               QString::number(link.targetLine) + u',';
            statement += link.extended.isEmpty() ? noText : text(link.extended) + u')';
        }
        if (!m_linkDb->executeInsertStatement(statement))
            return false;
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
    const bool done =
        clear(links) &&
        (links.links.empty() || (writeHead(links) && writeTargets(links) && writeLinks(links)));
    return done && m_linkDb->commit() ? Outcome::Written : fail();
}

LinkWriter::Outcome LinkWriter::write(const LineLinks &links)
{
    m_problem.clear();
    const Outcome outcome = tryToWrite(links);
    return outcome == Outcome::Failed && m_linkDb->lastError().lost ? tryToWrite(links) : outcome;
}

} // namespace VelkRelease
