#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

/// Columns of a table or result by their stored names; upper and lower case are the same.
class VELKGEOMCORE_EXPORT LinkDbColumns
{
public:
    LinkDbColumns() = default;
    explicit LinkDbColumns(const QStringList &names);

    [[nodiscard]] const QStringList &names() const { return m_names; }
    [[nodiscard]] qsizetype count() const { return m_names.size(); }
    /// -1 if there is none; the first of several.
    [[nodiscard]] int indexOf(const QString &name) const;
    void append(const QString &name);

private:
    QStringList m_names;
    QHash<QString, int> m_places;
};

/// Values of a row by column. A value that was never set is invalid; NULL of the database is a
/// null value. A copy shares the columns.
class VELKGEOMCORE_EXPORT PLinkDbRecordC
{
public:
    PLinkDbRecordC();
    explicit PLinkDbRecordC(std::shared_ptr<const LinkDbColumns> columns,
                            const QVariantList &values = {});

    [[nodiscard]] const LinkDbColumns &columns() const { return *m_columns; }
    /// -1 for an unknown column; case does not matter.
    [[nodiscard]] int indexOf(const QString &column) const { return m_columns->indexOf(column); }
    /// Invalid if it is not set or there is no such column.
    [[nodiscard]] QVariant value(int index) const { return m_values.value(index); }
    /// Also for columns that the table lacks, which come after those that it has.
    void setValue(const QString &column, const QVariant &value);

private:
    std::shared_ptr<const LinkDbColumns> m_columns;
    QVariantList m_values;
};
