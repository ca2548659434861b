#include "Line.h"

#include "ContentStructure.h"
#include <geomcore/csv/TableDescriptor.h>
#include <geomcore/value/RangeCell.h>

namespace VKTab {

Line::Line() = default;

Line::Line(std::shared_ptr<ContentData> content, std::shared_ptr<const ContentStructure> structure,
           const LineInfo &info)
    : m_content(std::move(content))
    , m_structure(std::move(structure))
    , m_info(info)
{
}

Line::Line(const Line &other)
    : LineI(other)
    , m_content(other.m_content)
    , m_structure(other.m_structure)
    , m_overlay(other.m_overlay ? std::make_unique<Overlay>(*other.m_overlay) : nullptr)
    , m_info(other.m_info)
{
}

Line::Line(Line &&other) noexcept = default;

Line &Line::operator=(const Line &other)
{
    if (this != &other)
        *this = Line(other);
    return *this;
}

Line &Line::operator=(Line &&other) noexcept = default;

Line::~Line() = default;

QList<Var> Line::getVarList() const
{
    return m_structure ? m_structure->vars() : QList<Var>();
}

LineInfo Line::getLineInfo() const
{
    return m_info;
}

QVariant Line::getValue(ValueId id, EvalFlags) const
{
    if (!isValid())
        return {};
    switch (id) {
    case NormNumber:
        return m_structure->normNumber().isEmpty()
                   ? m_structure->file()->getKeyValue(KeyNormNumber).toString()
                   : m_structure->normNumber().text(*this);
    case ProjectName:
        return m_structure->projectName();
    case NormDesignation:
        return m_structure->normDesignation().isEmpty()
                   ? m_structure->file()->translateText(
                         m_structure->file()->descriptor().designation, VarId())
                   : m_structure->normDesignation().text(*this);
    }
    return {};
}

Value Line::getValue(const Var &var, FormatFlags format, EvalFlags) const
{
    if (!isValid())
        return {};
    const VarId id = var.getVarId();
    if (m_overlay) {
        const auto put = m_overlay->find(id);
        if (put != m_overlay->end())
            return m_structure->formatted(id, put->second, format);
    }
    return m_structure->value(id, m_info, format, *this);
}

QVariant Line::getLineKeyValue(const QString &key) const
{
    return isValid() ? m_structure->modify()->getLineKeyValue(m_info.getLineId(), key)
                     : QVariant(QStringLiteral(""));
}

bool Line::hasValue(const Var &var, const Value &value, bool rangeContains) const
{
    if (!isValid())
        return false;
    const VarId id = var.getVarId();
    const char decimal = m_structure->decimalChar(id);
    QString own;
    if (m_structure->findVar(id).isFW()) {
        own = m_structure->rangeText(id, m_info.getLineId());
        const auto range = rangeContains ? parseRangeCell(own, decimal) : std::nullopt;
        if (range)
            return range->contains(value.toString(), decimal);
    } else {
        own = getValue(var, FormatPlain | FormatUntranslated).toString();
    }
    return equalCells(own, value.toString(), decimal);
}

void Line::putValue(const VarId &id, const Value &value)
{
    if (!isValid() || !id.isValid())
        return;
    if (!m_overlay)
        m_overlay = std::make_unique<Overlay>();
    (*m_overlay)[id] = value;
}

void Line::takeValue(const VarId &id)
{
    if (m_overlay)
        m_overlay->erase(id);
}

void Line::takeValues()
{
    if (m_overlay)
        m_overlay->clear();
}

bool Line::apply()
{
    if (!isValid() || !m_overlay)
        return false;
    Overlay chosen;
    for (const auto &[id, value] : *m_overlay) {
        if (m_structure->offers(id, m_info.getLineId(), value))
            chosen[id] = m_structure->holdsValue(id, m_info.getLineId(), value) ? Value() : value;
    }
    takeValues();
    m_structure->modify()->setValues(m_info.getLineId(), chosen);
    return !chosen.empty();
}

} // namespace VKTab
