#pragma once

#include "Content.h"
#include "Finder.h"
#include "FindResult.h"
#include "FindValue.h"
#include "LineOrder.h"

#include <QList>
#include <QVector>

#include <memory>
#include <vector>

namespace VKTab {

class ColumnSearch;
class ContentStructure;
class TupleSearch;

/// One search for the lines that have all of some values. Few lines are looked at one by one; for
/// many the columns' indexes give the rows, and lines with changed cells are looked at beside.
class LineSearch
{
public:
    LineSearch(const Content &content, const QList<FindValue> &values, Finder::FindFlags flags);

    [[nodiscard]] QList<FindResult> search(const QVector<LineId> &lines) const;

private:
    /// What a column of the file must have.
    struct Wanted
    {
        const ColumnSearch *column;
        int number;                 // of the column
        std::vector<quint32> texts; // ascending
        size_t rowCount;
    };

    [[nodiscard]] QList<FindResult> searchEach(const QVector<LineId> &lines) const;
    /// The matching rows of the table, ascending.
    [[nodiscard]] std::vector<int> matchingRows() const;
    [[nodiscard]] std::vector<Wanted> wantedTexts(QList<FindValue> &others) const;
    [[nodiscard]] const TupleSearch *tuples(const std::vector<Wanted> &wanted) const;
    [[nodiscard]] std::vector<int> indexedRows(const std::vector<Wanted> &wanted) const;
    void replaceChangedLines(std::vector<int> &rows) const;
    [[nodiscard]] bool matches(const LineId &id, const QList<FindValue> &values) const;
    [[nodiscard]] bool mayShow(int row) const { return !m_visible || m_visible->contains(row); }

    const Content &m_content;
    std::shared_ptr<const ContentStructure> m_structure;
    std::shared_ptr<const LineOrder> m_visible; // null if hidden lines count too
    const QList<FindValue> &m_values;
    bool m_rangeContains;
};

} // namespace VKTab
