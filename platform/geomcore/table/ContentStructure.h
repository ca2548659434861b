#pragma once

#include "FileLayer.h"
#include "LineInfo.h"
#include "LineOrder.h"
#include "LineText.h"
#include "ModifyLayer.h"
#include <geomcore/value/Var.h>

#include <boost/shared_ptr.hpp>

#include <QList>

#include <memory>
#include <mutex>
#include <vector>

namespace VKTab {

class ColumnSearch;
class LineI;
class TableData;
class TupleSearch;

/// The layers of a table and what follows from them: variables, look-ups, column order. Immutable,
/// made anew when a layer or its variables change; lines hold the one they were made with.
class ContentStructure
{
public:
    /// No layer but the one that takes changes.
    ContentStructure();
    ContentStructure(boost::shared_ptr<FileLayer> file, boost::shared_ptr<ModifyLayer> modify,
                     std::vector<boost::shared_ptr<LayerI>> added);
    ~ContentStructure();

    [[nodiscard]] const boost::shared_ptr<FileLayer> &file() const { return m_file; }
    [[nodiscard]] const boost::shared_ptr<ModifyLayer> &modify() const { return m_modify; }
    [[nodiscard]] const std::vector<boost::shared_ptr<LayerI>> &added() const { return m_added; }
    /// Null without lines.
    [[nodiscard]] const std::shared_ptr<const TableData> &table() const { return m_table; }
    [[nodiscard]] bool isValid() const { return m_file && m_file->isValid(); }
    /// The file's, the added and the modify layer, as far as there are any.
    [[nodiscard]] std::vector<boost::shared_ptr<LayerI>> allLayers() const;

    [[nodiscard]] const QList<Var> &vars() const { return m_vars; }
    [[nodiscard]] Var findVar(const VarId &id) const;
    /// The first of that name.
    [[nodiscard]] Var findVar(QStringView name) const;
    [[nodiscard]] const QList<VarId> &columnOrder() const { return m_columnOrder; }
    /// The layer that has the variable; null for none.
    [[nodiscard]] LayerI *layerOf(const VarId &id) const;

    [[nodiscard]] LineInfo lineInfo(const LineId &id) const;
    [[nodiscard]] const std::shared_ptr<const LineOrder> &allLines() const { return m_allLines; }
    [[nodiscard]] const LineText &normNumber() const { return m_normNumber; }
    [[nodiscard]] const LineText &normDesignation() const { return m_normDesignation; }

    /// What the table has for a line, changed cells included.
    [[nodiscard]] Value value(const VarId &id, const LineInfo &info, FormatFlags format,
                              const LineI &shown) const;
    /// A value that stands in for a cell, as it is asked for.
    [[nodiscard]] Value formatted(const VarId &id, const Value &value, FormatFlags format) const;
    /// Text of the range that a line offers, whatever was chosen from it.
    [[nodiscard]] QString rangeText(const VarId &id, const LineId &line) const;
    /// True if the value is one of those that the line offers for a range variable.
    [[nodiscard]] bool offers(const VarId &id, const LineId &line, const Value &value) const;
    /// True if the layer that has the variable holds that very value.
    [[nodiscard]] bool holdsValue(const VarId &id, const LineId &line, const Value &value) const;
    /// Decimal character of a variable's cells.
    [[nodiscard]] char decimalChar(const VarId &id) const;
    /// File name of the table's project, without its suffix.
    [[nodiscard]] QString projectName() const;
    /// Index of a column of the file; made at the first call.
    [[nodiscard]] const ColumnSearch &search(int column) const;
    /// Index of several columns together, ascending, for searches that would look at \a rows rows
    /// without it. Null until all of them would have looked at a few times the table: then it is
    /// made.
    [[nodiscard]] const TupleSearch *tuples(const std::vector<int> &columns, size_t rows) const;

private:
    struct SearchSlot;
    struct TupleSlot;

    void collectVars();
    void collectColumnOrder();
    void appendLayerColumns(const LayerI &layer);
    [[nodiscard]] int indexOf(const VarId &id) const;

    boost::shared_ptr<FileLayer> m_file;
    boost::shared_ptr<ModifyLayer> m_modify;
    std::vector<boost::shared_ptr<LayerI>> m_added;
    std::shared_ptr<const TableData> m_table;
    std::shared_ptr<const LineOrder> m_allLines;
    QList<Var> m_vars;
    std::vector<LayerI *> m_layers;                // by index of the variable
    std::vector<std::pair<int, int>> m_byId;       // (id, index), sorted
    std::vector<std::pair<QString, int>> m_byName; // (name, index), sorted
    QList<VarId> m_columnOrder;
    LineText m_normNumber;
    LineText m_normDesignation;
    std::unique_ptr<SearchSlot[]> m_searches; // by column of the file
    mutable std::mutex m_tupleLock;           // guards the next
    mutable std::vector<std::unique_ptr<TupleSlot>> m_tuples;
};

} // namespace VKTab
