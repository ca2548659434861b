#pragma once

#include <geomcore/table/Content.h>
#include <geomcore/table/InternedColumn.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The shown values of one variable: each row of the file has the number of its text, so that
/// sorting and filtering look at each different text once. A picture of the moment.
class TableColumnValues
{
public:
    TableColumnValues(const VKTab::Content &table, const VKTab::Var &var);
    TableColumnValues(const TableColumnValues &) = delete;
    TableColumnValues &operator=(const TableColumnValues &) = delete;
    ~TableColumnValues();

    /// Numbers of texts, by row of the file.
    [[nodiscard]] const std::vector<quint32> &ids() const { return m_shared ? *m_shared : m_own; }
    /// Texts by number, UTF-8; empty for a missing value. Two numbers may have the same text.
    [[nodiscard]] const std::vector<std::string_view> &texts() const { return m_texts; }
    [[nodiscard]] const VKTab::Var &var() const { return m_var; }
    [[nodiscard]] char decimalChar() const { return m_decimalChar; }

    /// Place of each text in ascending order, by number; equal texts have the same place. Numbers
    /// stand before other texts; ranges count by their first number. Missing values have Missing.
    [[nodiscard]] std::vector<quint32> ranks() const;
    static constexpr quint32 Missing = ~quint32(0);

private:
    void takeFileColumn(const VKTab::Content &table, int column);
    void takeChangedLines(const VKTab::Content &table, int column);
    void readLines(const VKTab::Content &table);

    std::shared_ptr<const VKTab::TableData> m_data;
    VKTab::Var m_var;
    char m_decimalChar;
    const std::vector<quint32> *m_shared = nullptr; // the table's; null if m_own counts
    std::vector<quint32> m_own;
    std::vector<std::string_view> m_texts;
    std::deque<std::string> m_made; // owns the texts that are not the table's
};
