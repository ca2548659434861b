#include "LinkDbDeletedRows.h"

#include "LinkDbConnection.h"
#include "LinkDbSchema.h"
#include "PLinkDbCPrivate.h"

#include <core/text/PString.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUuid>

namespace {

constexpr qsizetype rowsOfStatement = 200;

/// Tables, which stay in the journal's hands: what it holds itself is not noted again.
struct Deletion
{
    QString table;
    QString condition; ///< with "WHERE"; empty: all rows
};

std::optional<Deletion> deletionOf(const QString &statement)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*DELETE\\s+FROM\\s+([^\\s;]+)\\s*(\\bWHERE\\b.*?)?[\\s;]*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(statement);
    if (!match.hasMatch())
        return std::nullopt;
    return Deletion{match.captured(1), match.captured(2)};
}

bool isKept(const QString &table)
{
    return table.compare(QLatin1String(LinkDbSchema::Documents), Qt::CaseInsensitive) == 0 ||
           table.compare(QLatin1String(LinkDbSchema::Hierarchy), Qt::CaseInsensitive) == 0;
}

QString jsonOf(const LinkDbColumns &columns, const QVariantList &row)
{
    QJsonObject values;
    for (qsizetype i = 0; i < columns.count(); ++i)
        values.insert(columns.names().at(i),
                      row.at(i).isNull() ? QJsonValue() : QJsonValue::fromVariant(row.at(i)));
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

QString insertOf(LinkDbConnection &connection, const LinkDbDeletedRow &row)
{
    const QStringList columns = connection.columnsOf(row.table);
    QStringList names;
    QStringList values;
    for (const QString &column : columns) {
        if (!row.values.contains(column))
            continue;
        names.append(LinkDbConnection::identifier(column));
        values.append(connection.literal(row.values.value(column)));
    }
    return QStringLiteral("INSERT INTO ") + row.table + QStringLiteral(" (") +
           names.join(QLatin1String(", ")) + QStringLiteral(") VALUES (") +
           values.join(QLatin1String(", ")) + u')';
}

} // namespace

bool LinkDbDeletedRows::note(LinkDbConnection &connection, const QString &statement)
{
    const auto deletion = deletionOf(statement);
    if (!deletion || !isKept(deletion->table))
        return true;
    LinkDbConnection::Result found;
    if (!connection.run(
            QStringLiteral("SELECT * FROM ") + deletion->table + u' ' + deletion->condition +
                (connection.isPostgreSQL() ? QStringLiteral("\nFOR UPDATE") : QString()),
            &found))
        return false;
    const QStringList names = connection.columnsOf(deletion->table);
    const LinkDbColumns columns(names);
    const QString head =
        u'(' + connection.literal(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)) +
        QStringLiteral(", ") + connection.literal(connection.userName()) + QStringLiteral(", ") +
        connection.literal(QUuid::createUuid().toString(QUuid::WithoutBraces)) +
        QStringLiteral(", ") + connection.literal(deletion->table) + QStringLiteral(", ");
    for (qsizetype first = 0; first < found.rows.size(); first += rowsOfStatement) {
        QStringList rows;
        for (const QVariantList &row : found.rows.mid(first, rowsOfStatement))
            rows.append(head + connection.literal(jsonOf(columns, row)) + u')');
        if (!connection.run(QStringLiteral("INSERT INTO linkdb_deleted(deleted_at, user_name, "
                                           "batch, table_name, row_values) VALUES ") +
                            rows.join(QLatin1String(", "))))
            return false;
    }
    return true;
}

QList<LinkDbDeletedRow> LinkDbDeletedRows::list(PLinkDbC &linkDb, int limit)
{
    const PRefPtr<PLinkDbQueryI> found = linkDb.executeSelectStatement(
        QStringLiteral("SELECT id, deleted_at, user_name, batch, table_name, row_values "
                       "FROM linkdb_deleted ORDER BY id DESC LIMIT %1")
            .arg(limit));
    QList<LinkDbDeletedRow> rows;
    rows.reserve(found->rowCount());
    for (qsizetype i = 0; i < found->rowCount(); ++i) {
        const QVariantList &row = found->row(i);
        rows.append(
            {row.at(0).toLongLong(), QDateTime::fromString(row.at(1).toString(), Qt::ISODateWithMs),
             row.at(2).toString(), row.at(3).toString(), row.at(4).toString(),
             QJsonDocument::fromJson(row.at(5).toString().toUtf8()).object().toVariantMap()});
    }
    return rows;
}

bool LinkDbDeletedRows::restore(PLinkDbC &linkDb, const QList<LinkDbDeletedRow> &rows)
{
    return linkDb.parts().change([rows](LinkDbConnection &connection) {
        return std::ranges::all_of(rows, [&](const LinkDbDeletedRow &row) {
            qint64 taken = 0;
            LinkDbConnection::Result gone;
            if (!connection.run(
                    QStringLiteral("DELETE FROM linkdb_deleted WHERE id = %1").arg(row.id), &gone))
                return false;
            taken = gone.changed;
            if (taken != 1 || !isKept(row.table))
                return connection.fail(
                    PString::translate("Die gelöschte Zeile %1 steht nicht mehr im Protokoll der "
                                       "Linkdatenbank; sie ist wohl schon wiederhergestellt",
                                       "VelkGeomCore")
                        .arg(row.id));
            return connection.run(insertOf(connection, row));
        });
    });
}
