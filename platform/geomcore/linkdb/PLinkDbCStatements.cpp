#include "LinkDbConnection.h"
#include "LinkDbDeletedRows.h"
#include "logStatement.h"
#include "PLinkDbC.h"
#include "PLinkDbCPrivate.h"

#include <QUuid>

#include <utility>

namespace {

class LinkDbQuery : public PLinkDbQueryI
{
public:
    LinkDbQuery(bool valid, LinkDbConnection::Result result)
        : m_valid(valid)
        , m_result(std::move(result))
    {
        if (!m_result.columns)
            m_result.columns = std::make_shared<LinkDbColumns>();
        if (!m_valid)
            m_result.rows.clear();
    }

    [[nodiscard]] bool isValid() const override { return m_valid; }
    [[nodiscard]] std::shared_ptr<const LinkDbColumns> columns() const override
    {
        return m_result.columns;
    }
    [[nodiscard]] qsizetype rowCount() const override { return m_result.rows.size(); }
    [[nodiscard]] const QVariantList &row(qsizetype index) const override
    {
        return m_result.rows.at(index);
    }

private:
    bool m_valid;
    LinkDbConnection::Result m_result;
};

} // namespace

PRefPtr<PLinkDbQueryI> PLinkDbC::executeSelectStatement(const QString &sql)
{
    logStatement(sql);
    LinkDbConnection::Result result;
    const bool done =
        d->work([&](LinkDbConnection &connection) { return connection.select(sql, result); });
    return new LinkDbQuery(done, std::move(result));
}

int PLinkDbC::executeCountStatement(const QString &sql) const
{
    logStatement(sql);
    LinkDbConnection::Result result;
    if (!d->work([&](LinkDbConnection &connection) { return connection.select(sql, result); }))
        return -1;
    bool isNumber = false;
    const int count = result.rows.value(0).value(0).toInt(&isNumber);
    return isNumber ? count : -1;
}

bool PLinkDbC::executeInsertStatement(const QString &sql) const
{
    logStatement(sql);
    return d->change([&](LinkDbConnection &connection) {
        return LinkDbDeletedRows::note(connection, sql) && connection.run(sql);
    });
}

bool PLinkDbC::commit()
{
    logStatement(QStringLiteral("COMMIT"));
    return d->work([](LinkDbConnection &connection) { return connection.commit(); });
}

bool PLinkDbC::rollback()
{
    logStatement(QStringLiteral("ROLLBACK"));
    return d->work([](LinkDbConnection &connection) { return connection.rollback(); });
}

bool PLinkDbC::isPending() const
{
    return d->pending;
}

PLinkDbRecordC PLinkDbC::createRecord(const PString &table)
{
    QStringList columns;
    d->work([&](LinkDbConnection &connection) { return connection.tableColumns(table, columns); });
    return PLinkDbRecordC(std::make_shared<LinkDbColumns>(columns));
}

QString PLinkDbC::createSqlStatement(const PString &table, const PLinkDbRecordC &record,
                                     bool update)
{
    QStringList names;
    QStringList values;
    d->work([&](LinkDbConnection &connection) {
        QStringList columns;
        if (!connection.tableColumns(table, columns))
            return false;
        for (const QString &column : std::as_const(columns)) {
            const QVariant value = record.value(record.indexOf(column));
            if (!value.isValid() ||
                column.compare(QLatin1String("GEO_ID"), Qt::CaseInsensitive) == 0)
                continue;
            names.append(LinkDbConnection::identifier(column));
            values.append(connection.literal(value));
        }
        const int key = LinkDbColumns(columns).indexOf(QStringLiteral("GEO_ID"));
        if (!update && key >= 0 && !names.isEmpty()) {
            names.prepend(LinkDbConnection::identifier(columns.at(key)));
            values.prepend(connection.literal(QUuid::createUuid().toString(QUuid::WithoutBraces)));
        }
        return true;
    });
    if (names.isEmpty())
        return {};
    if (!update)
        return QStringLiteral("INSERT INTO ") + table + QStringLiteral(" (") +
               names.join(QLatin1String(", ")) + QStringLiteral(") VALUES (") +
               values.join(QLatin1String(", ")) + u')';
    QStringList assignments;
    assignments.reserve(names.size());
    for (qsizetype i = 0; i < names.size(); ++i)
        assignments.append(names.at(i) + QStringLiteral(" = ") + values.at(i));
    return QStringLiteral("UPDATE ") + table + QStringLiteral(" SET ") +
           assignments.join(QLatin1String(", "));
}

QString PLinkDbC::literal(const QVariant &value) const
{
    // The others want the connection's thread.
    if (const std::optional<QString> plain = LinkDbConnection::plainLiteral(value))
        return *plain;
    QString text;
    if (d->thread)
        d->thread->run(
            {}, [&] { text = d->connection.literal(value); }, [] {});
    else
        text = d->connection.literal(value);
    return text;
}

QString PLinkDbC::identifier(const QString &name) const
{
    return LinkDbConnection::identifier(name);
}
