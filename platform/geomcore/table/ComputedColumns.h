#pragma once

#include "BoundExpression.h"

#include <QStringList>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace VKTab {

class FieldIndex;
class LineView;

/// The formulas of a table's computed variables that have no column in the file, and how they need
/// each other. Immutable but for what it remembers of the last line; any thread.
class ComputedColumns
{
public:
    /// A formula that does not parse; its column has no values.
    struct Fault
    {
        QString column;
        QString text;
    };

    /// The fields from \a firstColumn on have no column in the file.
    ComputedColumns(const FieldIndex &fields, int firstColumn);
    ~ComputedColumns();
    ComputedColumns(const ComputedColumns &) = delete;
    ComputedColumns &operator=(const ComputedColumns &) = delete;

    [[nodiscard]] const std::vector<Fault> &faults() const { return m_faults; }
    /// Names of columns that need each other in a circle; empty if there is none. With one, nothing
    /// can be evaluated.
    [[nodiscard]] const QStringList &cycle() const { return m_cycle; }

    /// Text of the variable at that index of the descriptor's fields for what the line shows, as
    /// LineView::text gives it. Columns that it needs are evaluated first, each once a line.
    void evaluate(const LineView &line, int column, std::string &result) const;

private:
    struct Formula
    {
        BoundExpression expression;
        std::vector<int> needs; ///< Other formulas by their index.
    };
    struct Memory;

    void add(const FieldIndex &fields, int column);
    void findCycle(const FieldIndex &fields);
    void evaluateAll(const LineView &line, int index, Memory &memory) const;
    [[nodiscard]] bool pushNeeds(int index, Memory &memory) const;
    void evaluateOne(const LineView &line, int index, Memory &memory) const;
    [[nodiscard]] std::unique_ptr<Memory> memoryFor(const LineView &line) const;

    int m_firstColumn;
    std::vector<Formula> m_formulas;
    std::vector<Fault> m_faults;
    QStringList m_cycle;
    mutable std::atomic<Memory *> m_memory = nullptr; // one that no thread uses now, or null
};

} // namespace VKTab
