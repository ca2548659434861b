#pragma once

#include "LayerI.h"

#include <QVariant>
#include <QVector>

#include <memory>
#include <vector>

namespace VKTab {

struct BaseLayerShared;

/// Layer with everything kept in memory. A subclass overrides only what it changes: every operation
/// works for a layer with one variable and no lines of its own. A copy is independent; nobody
/// listens to it yet.
class VELKGEOMCORE_EXPORT BaseLayer : public LayerI
{
public:
    BaseLayer();
    explicit BaseLayer(int layerType);
    BaseLayer(const BaseLayer &other);
    BaseLayer &operator=(const BaseLayer &other) = delete;
    ~BaseLayer() override;

    [[nodiscard]] boost::shared_ptr<LayerI> clone() const override;
    void reset() override;
    /// The type given at construction, else the source of the first variable, else 0.
    [[nodiscard]] int getLayerType() const override;
    [[nodiscard]] QVariant getKeyValue(KeyValueId id) const override;
    [[nodiscard]] QVariant getKeyValue(const QString &name) const override;

    [[nodiscard]] QList<Var> getVarList() const override;
    [[nodiscard]] VarId getVarId(QStringView name) const override;
    [[nodiscard]] std::optional<Var> getVar(QStringView name) const override;
    [[nodiscard]] Var getVar(const VarId &id) const override;
    [[nodiscard]] bool isValid(const VarId &id) const override;
    [[nodiscard]] QString getName(const VarId &id) const override;
    [[nodiscard]] QHash<VarId, QStringList> getColumnFilter() const override;
    [[nodiscard]] QStringList getColumnFilter(const VarId &id) const override;
    [[nodiscard]] QVariant getVarAttribute(const VarId &id, VarAttr attribute) const override;
    [[nodiscard]] QVariant getVarProperty(const VarId &id, VarPropId property) const override;
    bool setVarAttribute(const VarId &id, VarAttr attribute, const QVariant &value) override;
    bool deleteVar(const VarId &id) override;

    [[nodiscard]] LineInfo getLineInfo(const LineId &line) const override;
    [[nodiscard]] QList<LineInfo> getLineInfoList() const override;
    [[nodiscard]] QVariant getLineProperty(const LineId &line, LinePropId property) const override;
    [[nodiscard]] QVariant getLineKeyValue(const LineId &line, const QString &key) const override;
    [[nodiscard]] QList<LinePropId> getLineProperties() const override;
    [[nodiscard]] QList<LineId> getHiddenLines() const override;
    bool setLineHidden(const LineId &line, bool hidden) override;
    bool deleteLine(const LineId &line) override;
    bool copyLine(const LineId &from, const LineId &to, const QList<Var> &vars,
                  bool withStatus) override;

    [[nodiscard]] Value getValue(const VarId &id, const LineId &line,
                                 const LineI &shown) const override;
    [[nodiscard]] Value getValue(const VarId &id, const LineId &line) const override;
    [[nodiscard]] bool isLocked(const VarId &id, const LineId &line) const override;
    [[nodiscard]] bool isDefValue(const VarId &id, const LineId &line) const override;
    [[nodiscard]] QVariant getCellProperty(const VarId &id, const LineId &line,
                                           CellPropId property) const override;
    [[nodiscard]] std::optional<QString> mapToVisibleValue(const VarId &id, const LineId &line,
                                                           const Value &value) const override;
    void fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const override;
    bool setValue(const VarId &id, const LineId &line, const Value &value) override;
    [[nodiscard]] QString translateText(const QString &text, const VarId &id) const override;

    [[nodiscard]] QList<FilterCondition> getFilterConditions() const override;
    [[nodiscard]] boost::shared_ptr<FilterBase> getFilter(const QList<FilterCondition> &conditions,
                                                          const Content &content) const override;
    [[nodiscard]] QHash<VarId, QStringList> getRangeFilter(const LineId &line) const override;
    [[nodiscard]] Value getRangeValueCustomDefault(const VarId &id) const override;
    [[nodiscard]] QStringList getVarGroups() const override;
    [[nodiscard]] QList<VarId> evaluateColumnMapping(const QList<Var> &vars,
                                                     const QHash<QString, Var> &byName,
                                                     const QStringList &order,
                                                     const VarPredicate &accepts) const override;
    [[nodiscard]] QMap<QString, QList<VarId>>
    evaluateVariableToGroupMapping(const QMap<VarId, QStringList> &groups, const QList<Var> &vars,
                                   const QHash<QString, Var> &byName) const override;

    [[nodiscard]] ChangeSignal &signalChanged() override;
    void updateVariableStructure() override;
    [[nodiscard]] bool isValid() const override;

    /// Adds a variable, or replaces the one of the same id. One without an id gets the next of the
    /// layer's type.
    void addVar(const Var &var);
    void setKeyValue(KeyValueId id, const QVariant &value);
    void setKeyValue(const QString &name, const QVariant &value);
    /// Sets the value of a status key on one line; an empty text shows nothing.
    void setLineKeyValue(const LineId &line, const QString &key, const QVariant &value);
    /// The same for many lines: \a numbers has, for each of them, the place of its value among \a
    /// values. Listeners hear of it once, as of a change of all lines.
    void setLineKeyValues(const QVector<LineId> &lines, const QString &key,
                          const QVariantList &values, const std::vector<quint8> &numbers);
    /// Numbers of the lines that have one of the values, none of them empty, of that status key;
    /// ascending, each once.
    [[nodiscard]] std::vector<int> linesWithKeyValue(const QString &key,
                                                     const QVariantList &values) const;
    /// Some line has, or had, a value of that status key. Cheap.
    [[nodiscard]] bool hasLineKeyValues(const QString &key) const;
    void addFilterCondition(const FilterCondition &condition);
    /// Removes every filter condition of that name.
    void removeFilterCondition(const QString &name);
    /// Restricts a column to the given texts; an empty list takes the filter away.
    void setColumnFilter(const VarId &id, const QStringList &texts);

protected:
    void emitChanged(LayerChange::Kind kind, const LineId &line = {});
    /// Stores values without a look at whose variables they are; null values clear. Tells listeners
    /// once. True if anything changed.
    bool storeValues(const LineId &line, const ValueMap &values);
    /// copyLine() without a look at whose variables they are.
    void copyStored(const LineId &from, const LineId &to, const QList<Var> &vars, bool withStatus);
    /// No value is stored at all.
    [[nodiscard]] bool hasNoValues() const;
    /// The stored value, without a look at whose variable it is.
    [[nodiscard]] std::optional<Value> storedValue(const VarId &id, const LineId &line) const;
    /// The lines with stored values, in ascending order.
    [[nodiscard]] QList<LineId> storedLines() const;
    [[nodiscard]] ValueMap storedValues(const LineId &line) const;

private:
    std::unique_ptr<BaseLayerShared> m_shared;
};

} // namespace VKTab
