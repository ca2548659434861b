#include "TypeRecognition.h"

#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/CellKey.h>
#include <geomcore/value/RangeText.h>
#include <release/text/releaseText.h>

#include <algorithm>

using namespace VKTab;

namespace VelkRelease {

namespace {

enum class NumberForm { None, Integer, Point, Comma };

NumberForm formOf(std::string_view text)
{
    text = trimmedCell(text);
    if (!CanonicalNumber::parse(text, ','))
        return NumberForm::None;
    const std::string_view digits = text.substr(text.find_first_not_of("+-"));
    if (digits.find_first_not_of("0123456789") == std::string_view::npos)
        return digits.size() > 1 && digits.front() == '0' ? NumberForm::None : NumberForm::Integer;
    return text.find(',') != std::string_view::npos ? NumberForm::Comma : NumberForm::Point;
}

/// Takes up number forms: what all of them together are.
struct NumberForms
{
    bool all = true;
    bool fraction = false;
    bool comma = false;

    void add(std::string_view text)
    {
        const NumberForm form = formOf(text);
        all = all && form != NumberForm::None;
        fraction = fraction || form == NumberForm::Point || form == NumberForm::Comma;
        comma = comma || form == NumberForm::Comma;
    }
    void apply(TableField &field) const
    {
        field.type = !all ? FieldType::String : fraction ? FieldType::Number : FieldType::Integer;
        field.decimalChar = all && comma ? ',' : '.';
    }
};

QString typeText(FieldType type)
{
    switch (type) {
    case FieldType::String:
        return releaseText("Text");
    case FieldType::Number:
        return releaseText("Zahl");
    case FieldType::Integer:
        return releaseText("ganze Zahl");
    case FieldType::Boolean:
        return releaseText("Wahrheitswert");
    case FieldType::Date:
        return releaseText("Datum");
    case FieldType::DateTime:
        break;
    }
    return releaseText("Datum mit Uhrzeit");
}

QString kindText(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Plain:
        break;
    case FieldKind::Range:
        return releaseText("Wertebereich (%1)");
    case FieldKind::Computed:
        return releaseText("berechnet (%1)");
    case FieldKind::Internal:
        return releaseText("intern (%1)");
    case FieldKind::Topology:
        return releaseText("Topologie (%1)");
    }
    return QStringLiteral("%1");
}

bool isToken(const QString &text)
{
    return text.size() <= 16 && !text.contains(u' ');
}

} // namespace

TypeRecognition::TypeRecognition(const TableData &table)
    : m_table(table)
{
}

std::vector<std::string_view> TypeRecognition::valuesOf(int column) const
{
    std::vector<std::string_view> values = m_table.interned(column).values;
    std::erase_if(values, [this](std::string_view cell) { return m_table.isMissing(cell); });
    return values;
}

TableField TypeRecognition::field(int column) const
{
    TableField field;
    field.name = m_table.descriptor().fields.at(column).name;
    if (!isNumeric(column, field) && isRange(column, field))
        field.kind = FieldKind::Range;
    return field;
}

bool TypeRecognition::isNumeric(int column, TableField &field) const
{
    const std::vector<std::string_view> values = valuesOf(column);
    NumberForms forms;
    for (std::string_view value : values)
        forms.add(value);
    if (values.empty() || !forms.all)
        return false;
    forms.apply(field);
    return true;
}

bool TypeRecognition::isRange(int column, TableField &field) const
{
    const std::vector<std::string_view> values = valuesOf(column);
    NumberForms forms;
    size_t lists = 0;
    size_t wrong = 0;
    bool tokens = true;
    for (std::string_view value : values) {
        const QString text = QString::fromUtf8(value.data(), qsizetype(value.size()));
        const auto range = RangeText::parse(text, ',');
        wrong += range ? 0 : 1;
        if (!range)
            continue;
        lists += range->count() > 1 ? 1 : 0;
        for (const QString &part : text.split(u';')) {
            const bool steps = part.contains(QLatin1String(".."));
            if (!steps)
                forms.add(part.toStdString());
            tokens = tokens && isToken(part);
        }
    }
    if (lists == 0 || wrong * 10 > values.size())
        return false;
    if (!forms.all && (!tokens || lists * 2 < values.size()))
        return false;
    forms.apply(field);
    return true;
}

int TypeRecognition::repeatedCells(int column) const
{
    const InternedColumn &interned = m_table.interned(column);
    const size_t distinct = valuesOf(column).size();
    return int(interned.ids.size() - distinct);
}

int TypeRecognition::keyColumn() const
{
    if (qint64(repeatedCells(0)) * 10 <= m_table.rowCount())
        return 0;
    for (int column = 1; column < m_table.columnCount(); ++column) {
        const TableField found = field(column);
        const bool name = found.kind == FieldKind::Plain && found.type != FieldType::Number;
        if (name && repeatedCells(column) == 0)
            return column;
    }
    return -1;
}

QString describeField(const TableField &field)
{
    const QString text = kindText(field.kind).arg(typeText(field.type));
    return field.decimalChar == ',' ? releaseText("%1 mit Dezimalkomma").arg(text) : text;
}

} // namespace VelkRelease
