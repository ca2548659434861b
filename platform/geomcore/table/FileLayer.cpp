#include "FileLayer.h"

#include "CellText.h"
#include "ConditionRule.h"
#include "ConditionRules.h"
#include "Content.h"
#include "LayerType.h"
#include "LineView.h"
#include "TableData.h"
#include <geomcore/value/LangThreadSettings.h>

#include <boost/make_shared.hpp>

namespace VKTab {

namespace {

DataType dataTypeOf(const TableField &field)
{
    if (field.type == FieldType::Integer)
        return DataTypeInteger;
    return field.type == FieldType::Number ? DataTypeNumber : DataTypeText;
}

VIDA vidaOf(const TableField &field)
{
    if (field.type == FieldType::Integer)
        return {'I', 0, true};
    return field.type == FieldType::Number ? VIDA('F', 0, true) : VIDA('A', 0, false);
}

Var varOf(const TableField &field, int column)
{
    Var var(static_cast<VarType>(field.kind));
    var.setVarId(LineView::varIdOf(column));
    var.setVarSource(fileLayerType());
    var.setName(field.name);
    var.setDescription(field.description.isEmpty() ? field.title : field.description);
    var.setDataType(dataTypeOf(field));
    var.setVida(vidaOf(field));
    var.setUnit(field.unit);
    var.setZTypeAsString(field.zType);
    var.setHidden(field.hidden);
    return var;
}

} // namespace

FileLayer::FileLayer()
    : FileLayer(TableDescriptor())
{
}

FileLayer::FileLayer(std::shared_ptr<const TableData> data)
    : BaseLayer(fileLayerType())
    , m_data(std::move(data))
    , m_descriptor(m_data ? std::shared_ptr<const TableDescriptor>(m_data, &m_data->descriptor())
                          : std::make_shared<const TableDescriptor>())
    , m_rules(std::make_shared<ConditionRules>())
{
    takeDescriptor();
}

FileLayer::FileLayer(const TableDescriptor &descriptor)
    : BaseLayer(fileLayerType())
    , m_descriptor(std::make_shared<const TableDescriptor>(descriptor))
    , m_rules(std::make_shared<ConditionRules>())
{
    takeDescriptor();
}

FileLayer::FileLayer(const FileLayer &other) = default;
FileLayer::~FileLayer() = default;

void FileLayer::takeDescriptor()
{
    for (int column = 0; column < m_descriptor->fields.size(); ++column)
        addVar(varOf(m_descriptor->fields.at(column), column));
    setKeyValue(KeyNormNumber, m_descriptor->normNumber);
    for (auto it = m_descriptor->attributes.begin(); it != m_descriptor->attributes.end(); ++it)
        setKeyValue(it.key(), it.value());
    for (const TableFilterCondition &condition : m_descriptor->filterConditions)
        addFilterCondition({condition.name, condition.condition});
}

boost::shared_ptr<LayerI> FileLayer::clone() const
{
    return boost::make_shared<FileLayer>(*this);
}

LineInfo FileLayer::getLineInfo(const LineId &line) const
{
    const int row = m_data && line.isValid() ? m_data->rowOf(line) : -1;
    return row < 0 ? LineInfo() : LineInfo(m_data->lineId(row), row);
}

QList<LineInfo> FileLayer::getLineInfoList() const
{
    QList<LineInfo> list;
    const int count = m_data ? m_data->rowCount() : 0;
    list.reserve(count);
    for (int row = 0; row < count; ++row)
        list.append(LineInfo(m_data->lineId(row), row));
    return list;
}

QVariant FileLayer::getLineProperty(const LineId &line, LinePropId property) const
{
    if (property != LinePropRow)
        return BaseLayer::getLineProperty(line, property);
    const LineInfo info = getLineInfo(line);
    return info.isValid() ? QVariant(info.getRow()) : QVariant();
}

QList<LinePropId> FileLayer::getLineProperties() const
{
    return {LinePropRow, LinePropHidden};
}

Value FileLayer::getValue(const VarId &id, const LineId &line) const
{
    const LineInfo info = getLineInfo(line);
    return info.isValid() ? LineView(*m_data, info.getRow()).value(LineView::columnOf(id))
                          : Value();
}

Value FileLayer::getValue(const VarId &id, const LineId &line, const LineI &shown) const
{
    const int column = LineView::columnOf(id);
    const bool computed = m_data && column >= m_data->columnCount();
    const Line *seen = computed ? dynamic_cast<const Line *>(&shown) : nullptr;
    return seen && seen->isValid() ? LineView(*seen).value(column) : getValue(id, line);
}

bool FileLayer::isLocked(const VarId &, const LineId &) const
{
    return true;
}

bool FileLayer::isDefValue(const VarId &, const LineId &) const
{
    return true;
}

QVariant FileLayer::getCellProperty(const VarId &id, const LineId &line, CellPropId property) const
{
    if (property == CellPropChanged)
        return false;
    const LineInfo info = getLineInfo(line);
    const int column = LineView::columnOf(id);
    const bool offers = info.isValid() && column >= 0 && column < m_data->columnCount() &&
                        m_descriptor->fields[column].isRange();
    return offers ? cellValue(*m_data, info.getRow(), column, FormatPlain | FormatUntranslated)
                        .toString()
                  : QString();
}

void FileLayer::fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const
{
    values.reserve(values.size() + static_cast<size_t>(m_descriptor->fields.size()));
    BaseLayer::fillLineData(line, shown, values);
}

bool FileLayer::setValue(const VarId &, const LineId &, const Value &)
{
    return false;
}

QString FileLayer::translateText(const QString &text, const VarId &id) const
{
    const QString language = LangThreadSettings::language();
    const int column = LineView::columnOf(id);
    const int field = column < m_descriptor->fields.size() ? column : -1;
    return language.isEmpty() ? text : m_descriptor->translate(text, field, language);
}

boost::shared_ptr<FilterBase> FileLayer::getFilter(const QList<FilterCondition> &conditions,
                                                   const Content &) const
{
    if (conditions.isEmpty())
        return {};
    return boost::make_shared<FilterBase>(m_rules->ruleOf(conditions));
}

bool FileLayer::isValid() const
{
    return m_data != nullptr;
}

QString FileLayer::getFinalDate(const QString &key) const
{
    return key.isEmpty() ? m_descriptor->finalDate : m_descriptor->attributes.value(key);
}

} // namespace VKTab
