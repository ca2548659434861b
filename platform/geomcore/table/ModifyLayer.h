#pragma once

#include "BaseLayer.h"

#include <QSet>

#include <mutex>

namespace VKTab {

/// Top layer of every table: takes changed cells of any variable, status key values and hidden
/// lines. Has no variables of its own.
class VELKGEOMCORE_EXPORT ModifyLayer : public BaseLayer
{
public:
    ModifyLayer();
    ModifyLayer(const ModifyLayer &other);
    ~ModifyLayer() override;

    [[nodiscard]] boost::shared_ptr<LayerI> clone() const override;
    bool copyLine(const LineId &from, const LineId &to, const QList<Var> &vars,
                  bool withStatus) override;
    [[nodiscard]] Value getValue(const VarId &id, const LineId &line) const override;
    [[nodiscard]] bool isLocked(const VarId &id, const LineId &line) const override;
    void fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const override;
    [[nodiscard]] QHash<VarId, QStringList> getRangeFilter(const LineId &line) const override;
    [[nodiscard]] bool isValid() const override;

    /// Changes several cells of a line at once; listeners hear of it once. True if anything
    /// changed.
    bool setValues(const LineId &line, const ValueMap &values);
    /// No cell of the table is changed. Cheap.
    [[nodiscard]] bool isPlain() const { return hasNoValues(); }
    /// No cell of the line is changed.
    [[nodiscard]] bool isPlain(const LineId &line) const;
    /// The changed cell, if it is one.
    [[nodiscard]] std::optional<Value> changedValue(const VarId &id, const LineId &line) const;
    /// The lines with changed cells, in ascending order.
    [[nodiscard]] QList<LineId> changedLines() const;
    /// Tells which variables of the table are ranges, for getRangeFilter().
    void setRangeVars(const QSet<VarId> &vars);

private:
    [[nodiscard]] QSet<VarId> rangeVars() const;

    mutable std::mutex m_rangeLock;
    QSet<VarId> m_rangeVars;
};

} // namespace VKTab
