#pragma once

#include "JoinCache.h"
#include "Memo.h"
#include "TargetVariable.h"

#include <geomcore/table/Content.h>
#include <geomcore/table/LineIndex.h>
#include <geomcore/table/LineSet.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Mapper {

class DesignationIndex;
class ElementIndex;
class ExactSearch;

/// Table of a target project as mappers see it: its variables and what is looked up in it. Shared
/// by mappers; any thread. Everything that has to be built is built at the first need and kept.
class TargetTable
{
public:
    /// The content must be fresh from a reader: display order is then the order of the file. Its
    /// filter conditions are evaluated and taken out of it.
    explicit TargetTable(const VKTab::Content &content);
    ~TargetTable();
    TargetTable(const TargetTable &) = delete;
    TargetTable &operator=(const TargetTable &) = delete;

    [[nodiscard]] const VKTab::Content &content() const { return m_content; }
    [[nodiscard]] const VKTab::TableData &data() const { return *m_data; }
    [[nodiscard]] const std::vector<TargetVariable> &variables() const { return m_variables; }
    /// Index in variables(); -1 if there is none of that exact name.
    [[nodiscard]] int variableOf(const QString &name) const;
    /// Whether the conditions of the project itself hide no line, or not this one.
    [[nodiscard]] bool isShown(int row) const { return !m_shown || m_shown->contains(row); }

    [[nodiscard]] bool isEverythingShown() const { return !m_shown; }
    /// The cell's bytes without blanks around; what a computed variable gives. Empty for no value.
    /// Points into the table or into \a scratch.
    [[nodiscard]] VELKGEOMCORE_EXPORT std::string_view text(int row, int variable,
                                                            std::string &scratch) const;

    /// A row split once, to take several texts from. Reused from row to row.
    struct Row
    {
        int row = -1;
        std::vector<std::string_view> cells;
        std::string scratch;
    };
    void split(int row, Row &out) const;
    /// As above, from a split row.
    [[nodiscard]] std::string_view text(const Row &row, int variable, std::string &scratch) const;
    /// UTF-8; empty if the table's lines have none.
    [[nodiscard]] std::string normDesignation(int row) const;

    /// Equal lines on a set of variables, given by their indexes in ascending order.
    [[nodiscard]] std::shared_ptr<const ExactSearch>
    exactSearch(const std::vector<int> &variables) const;
    [[nodiscard]] std::shared_ptr<const VKTab::LineIndex>
    lineIndex(const std::vector<int> &variables) const;
    [[nodiscard]] std::shared_ptr<const ElementIndex> elementIndex(int variable) const;
    [[nodiscard]] std::shared_ptr<const DesignationIndex> designations() const;
    /// The variables that tell the lines apart, see SourceTable::keyColumns.
    [[nodiscard]] std::shared_ptr<const std::vector<int>> keyVariables() const;
    [[nodiscard]] JoinCache &joins() const { return m_joins; }

private:
    void takeFilterConditions();

    VKTab::Content m_content;
    std::shared_ptr<const VKTab::TableData> m_data;
    std::vector<TargetVariable> m_variables;
    QHash<QString, int> m_variableOf;
    std::unique_ptr<const VKTab::LineSet> m_shown; ///< Null: all.
    mutable Memo<std::vector<int>, ExactSearch> m_exact;
    mutable Memo<std::vector<int>, VKTab::LineIndex> m_indexes;
    mutable Memo<int, ElementIndex> m_elements;
    mutable Memo<int, DesignationIndex> m_designations;
    mutable Memo<int, std::vector<int>> m_keyVariables;
    mutable JoinCache m_joins;
};

} // namespace Mapper
