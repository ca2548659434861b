#pragma once

#include "BaseLayer.h"

#include <memory>

namespace VKTab {

class ConditionRules;
class TableData;
class TableDescriptor;

/// The variables and lines of a table file. Shares the file's data with its copies; what can be
/// changed in it are key values, attributes of variables and filter conditions. A layer without
/// data, or with a descriptor only, has no lines.
class VELKGEOMCORE_EXPORT FileLayer : public BaseLayer
{
public:
    FileLayer();
    explicit FileLayer(std::shared_ptr<const TableData> data);
    /// The head of a table without its lines.
    explicit FileLayer(const TableDescriptor &descriptor);
    FileLayer(const FileLayer &other);
    ~FileLayer() override;

    [[nodiscard]] boost::shared_ptr<LayerI> clone() const override;
    [[nodiscard]] LineInfo getLineInfo(const LineId &line) const override;
    [[nodiscard]] QList<LineInfo> getLineInfoList() const override;
    [[nodiscard]] QVariant getLineProperty(const LineId &line, LinePropId property) const override;
    [[nodiscard]] QList<LinePropId> getLineProperties() const override;
    [[nodiscard]] Value getValue(const VarId &id, const LineId &line,
                                 const LineI &shown) const override;
    [[nodiscard]] Value getValue(const VarId &id, const LineId &line) const override;
    [[nodiscard]] bool isLocked(const VarId &id, const LineId &line) const override;
    [[nodiscard]] bool isDefValue(const VarId &id, const LineId &line) const override;
    [[nodiscard]] QVariant getCellProperty(const VarId &id, const LineId &line,
                                           CellPropId property) const override;
    void fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const override;
    bool setValue(const VarId &id, const LineId &line, const Value &value) override;
    [[nodiscard]] QString translateText(const QString &text, const VarId &id) const override;
    [[nodiscard]] boost::shared_ptr<FilterBase> getFilter(const QList<FilterCondition> &conditions,
                                                          const Content &content) const override;
    [[nodiscard]] bool isValid() const override;

    /// Null for a layer without data.
    [[nodiscard]] const std::shared_ptr<const TableData> &data() const { return m_data; }
    [[nodiscard]] const TableDescriptor &descriptor() const { return *m_descriptor; }

    /// The date on which the table was finished, ISO 8601; empty if unknown. `key` names a further
    /// date of the table's attributes, an empty one the final date itself.
    [[nodiscard]] QString getFinalDate(const QString &key) const;

private:
    void takeDescriptor();

    std::shared_ptr<const TableData> m_data;
    std::shared_ptr<const TableDescriptor> m_descriptor; // never null
    std::shared_ptr<ConditionRules> m_rules;             // never null; shared with copies
};

} // namespace VKTab
