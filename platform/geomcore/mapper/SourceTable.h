#pragma once

#include "DesignationPattern.h"

#include <geomcore/table/Content.h>

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class MapVarValueC;
namespace VKTab {
class LineView;
class TableData;
} // namespace VKTab

namespace Mapper {

/// The table whose lines are assigned, as the mapper needs it.
class SourceTable
{
public:
    /// No table.
    SourceTable() = default;
    explicit SourceTable(const VKTab::Content &content);

    /// Asked while whole tables are compared, on any thread: true ends that, and what comes out is
    /// of no use.
    void setCancellation(std::function<bool()> isCanceled) { m_isCanceled = std::move(isCanceled); }
    [[nodiscard]] bool isCanceled() const { return m_isCanceled && m_isCanceled(); }

    [[nodiscard]] bool isValid() const { return m_data != nullptr; }
    [[nodiscard]] const VKTab::Content &content() const { return m_content; }
    /// Null without a table.
    [[nodiscard]] const std::shared_ptr<const VKTab::TableData> &data() const { return m_data; }
    /// Columns of plain, range and computed variables.
    [[nodiscard]] const std::vector<int> &columns() const { return m_columns; }
    [[nodiscard]] int rowOf(int lineId) const;
    /// Column of a plain, range or computed variable; -1 if there is none.
    [[nodiscard]] int columnOf(const QString &name) const;
    [[nodiscard]] char decimalChar(int column) const;
    /// Names of the range variables among \a names, in the order of the table.
    [[nodiscard]] QStringList rangesAmong(const QStringList &names) const;

    /// Variables in which the line has a value.
    [[nodiscard]] int countValues(const VKTab::LineView &line) const;
    /// The same, and how many variables are made of these values: \a uses has a number for each
    /// column.
    [[nodiscard]] int countValues(const VKTab::LineView &line, const std::vector<int> &uses,
                                  int &used) const;
    [[nodiscard]] std::string normDesignation(const VKTab::LineView &line) const;
    [[nodiscard]] std::string normDesignation(const QHash<QString, MapVarValueC> &varset) const;
    /// Norm number and designation, see DesignationPattern.
    [[nodiscard]] std::string designation(const VKTab::LineView &line) const;
    [[nodiscard]] std::string designation(const QHash<QString, MapVarValueC> &varset) const;
    [[nodiscard]] const DesignationPattern &pattern() const { return m_pattern; }

    /// Columns whose values tell the lines apart: the primary key, else the first column if no cell
    /// is empty and nearly all differ. Looks through the table at the first call without a key.
    [[nodiscard]] const std::vector<int> &keyColumns() const;

private:
    std::function<bool()> m_isCanceled;
    VKTab::Content m_content;
    std::shared_ptr<const VKTab::TableData> m_data;
    std::vector<int> m_columns;
    QHash<QString, int> m_columnOf;
    [[nodiscard]] std::string textOf(const DesignationPattern &pattern,
                                     const VKTab::LineView &line) const;

    DesignationPattern m_pattern;
    DesignationPattern m_designation;
    mutable std::optional<std::vector<int>> m_keyColumns;
};

/// Key columns as in SourceTable, for any table.
[[nodiscard]] VELKGEOMCORE_EXPORT std::vector<int>
keyColumnsOf(const std::shared_ptr<const VKTab::TableData> &data);

/// The line's values by name, as createVarsetFromVKTable gives them for what the line shows.
[[nodiscard]] QHash<QString, MapVarValueC> varsetOf(const VKTab::LineView &line);

} // namespace Mapper
