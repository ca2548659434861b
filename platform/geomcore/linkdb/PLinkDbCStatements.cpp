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
    const auto result = std::make_shared<LinkDbConnection::Result>();
    const bool done = d->work(
        [sql, result](LinkDbConnection &connection) { return connection.select(sql, *result); });
    // One that was given up may still be filled.
    return new LinkDbQuery(done, done ? std::move(*result) : LinkDbConnection::Result());
}

int PLinkDbC::executeCountStatement(const QString &sql) const
{
    logStatement(sql);
    const auto result = std::make_shared<LinkDbConnection::Result>();
    if (!d->work([sql, result](LinkDbConnection &connection) {
            return connection.select(sql, *result);
        }))
        return -1;
    bool isNumber = false;
    const int count = result->rows.value(0).value(0).toInt(&isNumber);
    return isNumber ? count : -1;
}

bool PLinkDbC::executeInsertStatement(const QString &sql) const
{
    logStatement(sql);
    return d->change([sql](LinkDbConnection &connection) {
        return LinkDbDeletedRows::note(connection, sql) && connection.run(sql);
    });
}

bool PLinkDbC::commit()
{
    logStatement(QStringLiteral("COMMIT"));
    return d->work([](LinkDbConnection &connection) { return connection.commit(); },
                   Private::Stake::Commit);
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
    const auto columns = std::make_shared<QStringList>();
    const bool done = d->work([table, columns](LinkDbConnection &connection) {
        return connection.tableColumns(table, *columns);
    });
    return PLinkDbRecordC(std::make_shared<LinkDbColumns>(done ? *columns : QStringList()));
}

QString PLinkDbC::createSqlStatement(const PString &table, const PLinkDbRecordC &record,
                                     bool update)
{
    struct Parts
    {
        QStringList names;
        QStringList values;
    };
    const auto parts = std::make_shared<Parts>();
    const auto collect = [parts, table, record, update](LinkDbConnection &connection) {
        auto &[names, values] = *parts;
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
    };
    if (!d->work(collect) || parts->names.isEmpty())
        return {};
    const auto &[names, values] = *parts;
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
    const auto text = std::make_shared<QString>();
    const Private::Link link = d->current();
    if (link.thread &&
        link.thread->run(
            {}, [text, value, connection = link.connection] { *text = connection->literal(value); },
            [](auto, bool isStopped) { return isStopped; }))
        return *text;
    return LinkDbConnection().literal(value);
}

QString PLinkDbC::identifier(const QString &name) const
{
    return LinkDbConnection::identifier(name);
}
