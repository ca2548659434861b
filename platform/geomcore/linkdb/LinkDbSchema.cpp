#include "LinkDbSchema.h"

#include "LinkDbConnection.h"

#include <core/text/PString.h>

#include <algorithm>
#include <span>

namespace {

/// Keeps two programs from making the tables at the same time.
constexpr const char *PostgreSQLLock = "SELECT pg_advisory_xact_lock(86112003)";
/// In the head of the file, by which ours are known.
constexpr int ApplicationId = 0x564c4442;

/// %I: a number that the database counts; %H(column): index for equality of long texts.
struct Step
{
    int version;
    const char *statement;
};

// Names are not quoted, so that statements may write them in upper or lower case. Who may connect
// may read and write documents; groups and their keys belong to who made the database.
constexpr Step Steps[] = {
    {1, "CREATE TABLE linkdb_meta(name TEXT PRIMARY KEY, content TEXT NOT NULL)"},
    {1, "CREATE TABLE IF NOT EXISTS plm_document(GEO_ID TEXT PRIMARY KEY, PRJ_PATH TEXT, "
        "VERSION TEXT, LINE_ID INTEGER, LINE_SUBID INTEGER, XVARSET TEXT, CADSYSTEM TEXT, "
        "PDMSYSTEM TEXT, PDMID1 TEXT, PDMID2 TEXT, PDMID3 TEXT, PDMID4 TEXT, PDMID5 TEXT, "
        "GEOFEATURES TEXT, NBDEFAULTLANG TEXT)"},
    {1, "CREATE TABLE IF NOT EXISTS plm_hierarchy(PARENT TEXT, CHILD TEXT)"},
    {1, "CREATE INDEX plm_document_path ON plm_document %H(PRJ_PATH)"},
    {1, "CREATE INDEX plm_document_line ON plm_document(LINE_ID, LINE_SUBID)"},
    {1, "CREATE INDEX plm_hierarchy_parent ON plm_hierarchy %H(PARENT)"},
    {1, "CREATE INDEX plm_hierarchy_child ON plm_hierarchy %H(CHILD)"},
    {1, "CREATE TABLE linkdb_group(group_name TEXT PRIMARY KEY)"},
    {1, "CREATE TABLE linkdb_group_key(group_name TEXT, key_name TEXT, key_value TEXT, "
        "PRIMARY KEY(group_name, key_name))"},
    {1, "CREATE TABLE linkdb_group_member(group_name TEXT, user_name TEXT, "
        "PRIMARY KEY(group_name, user_name))"},
    {1, "INSERT INTO linkdb_group VALUES('standard')"},
    {1, "INSERT INTO linkdb_group_key VALUES('standard', 'PDM_ADD', '1'), "
        "('standard', 'PDM_EDIT', '1'), ('standard', 'PDM_DELETE', '1')"},
    {2, "CREATE TABLE linkdb_deleted(id %I, deleted_at TEXT, user_name TEXT, batch TEXT, "
        "table_name TEXT, row_values TEXT)"},
    {2, "CREATE INDEX linkdb_deleted_batch ON linkdb_deleted(batch)"},
    {3, "CREATE TABLE linkdb_link_project(id BIGINT PRIMARY KEY, release_date TEXT, "
        "source_path TEXT, source_version TEXT, source_table_version TEXT, fingerprint TEXT, "
        "links INTEGER, written_at TEXT, user_name TEXT)"},
    {3, "CREATE TABLE linkdb_link_target(id BIGINT PRIMARY KEY, target_path TEXT, "
        "target_version TEXT, target_table_version TEXT, target_date TEXT)"},
    {3, "CREATE TABLE linkdb_line_link(project_id BIGINT, source_line INTEGER, target_id BIGINT, "
        "target_line INTEGER, extended_text TEXT, PRIMARY KEY(project_id, source_line))"},
    {3, "CREATE VIEW linkdb_links AS SELECT p.release_date, p.source_path, p.source_version, "
        "p.source_table_version, l.source_line, t.target_date, t.target_path, t.target_version, "
        "t.target_table_version, l.target_line, l.extended_text FROM linkdb_line_link l "
        "JOIN linkdb_link_project p ON p.id = l.project_id "
        "LEFT JOIN linkdb_link_target t ON t.id = l.target_id"},
};

constexpr Step Grants[] = {
    {1, "GRANT SELECT ON linkdb_meta, linkdb_group, linkdb_group_key, linkdb_group_member "
        "TO PUBLIC"},
    {1, "GRANT SELECT, INSERT, UPDATE, DELETE ON plm_document, plm_hierarchy TO PUBLIC"},
    {2, "GRANT SELECT, INSERT, DELETE ON linkdb_deleted TO PUBLIC"},
    {3, "GRANT SELECT, INSERT, UPDATE, DELETE ON linkdb_line_link, linkdb_link_project, "
        "linkdb_link_target, linkdb_links TO PUBLIC"},
};

QString forDatabase(const LinkDbConnection &connection, const char *statement)
{
    const bool server = connection.isPostgreSQL();
    return QString::fromLatin1(statement)
        .replace(QLatin1String("%H"), server ? QLatin1String("USING hash ") : QLatin1String(""))
        .replace(QLatin1String("%I"),
                 server ? QLatin1String("BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY")
                        : QLatin1String("INTEGER PRIMARY KEY AUTOINCREMENT"));
}

/// -1 with the error: it cannot be asked, or it belongs to another program.
int presentVersion(LinkDbConnection &connection)
{
    if (!connection.columnsOf(QStringLiteral("linkdb_meta")).isEmpty()) {
        LinkDbConnection::Result result;
        if (!connection.run(
                QStringLiteral("SELECT content FROM linkdb_meta WHERE name = 'version'"), &result))
            return -1;
        return result.rows.isEmpty() ? 0 : result.rows.first().value(0).toInt();
    }
    if (connection.error().isSet())
        return -1;
    if (connection.isPostgreSQL())
        return 0;
    LinkDbConnection::Result tables;
    if (!connection.run(QStringLiteral("SELECT count(*), "
                                       "(SELECT count(*) FROM pragma_table_info('plm_document')) "
                                       "FROM sqlite_master"),
                        &tables))
        return -1;
    const QVariantList counts = tables.rows.value(0);
    if (counts.value(0).toInt() == 0 || counts.value(1).toInt() > 0)
        return 0;
    connection.fail(
        PString::translate("%1 ist die Datenbank eines anderen Programms", "VelkGeomCore")
            .arg(connection.settings().displayName()));
    return -1;
}

bool runSteps(LinkDbConnection &connection, std::span<const Step> steps, int present, int wanted)
{
    return std::ranges::all_of(steps, [&](const Step &step) {
        return step.version <= present || step.version > wanted ||
               connection.run(forDatabase(connection, step.statement));
    });
}

bool migrate(LinkDbConnection &connection, int wanted)
{
    if (connection.isPostgreSQL() && !connection.run(QLatin1String(PostgreSQLLock)))
        return false;
    // Another program may have done it meanwhile.
    const int present = presentVersion(connection);
    if (present < 0 || present >= wanted)
        return present >= 0;
    if (!connection.isPostgreSQL() &&
        !connection.run(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId)))
        return false;
    return runSteps(connection, Steps, present, wanted) &&
           (!connection.isPostgreSQL() || runSteps(connection, Grants, present, wanted)) &&
           connection.run(QStringLiteral("DELETE FROM linkdb_meta WHERE name = 'version'")) &&
           connection.run(
               QStringLiteral("INSERT INTO linkdb_meta VALUES('version', '%1')").arg(wanted));
}

} // namespace

bool LinkDbSchema::bringUpToDate(LinkDbConnection &connection, int version)
{
    const int present = presentVersion(connection);
    if (present < 0)
        return false;
    if (present > version)
        return connection.fail(
            PString::translate("Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur "
                               "die Form %3; es braucht eine neuere Fassung",
                               "VelkGeomCore")
                .arg(connection.settings().displayName(), QString::number(present),
                     QString::number(version)));
    if (present == version)
        return true;
    if (connection.settings().readOnly)
        return connection.fail(
            PString::translate("In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird "
                               "beim ersten Schreiben angelegt oder erneuert.",
                               "VelkGeomCore")
                .arg(connection.settings().displayName()));
    if (!connection.run(connection.isPostgreSQL() ? QStringLiteral("BEGIN")
                                                  : QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    if (migrate(connection, version) && connection.run(QStringLiteral("COMMIT")))
        return true;
    const LinkDbError error = connection.error();
    static_cast<void>(connection.run(QStringLiteral("ROLLBACK")));
    return connection.fail(
        PString::translate("Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den "
                           "neuesten Stand gebracht werden: %2",
                           "VelkGeomCore")
            .arg(connection.settings().displayName(), error.text),
        error.statement, error.lost);
}
