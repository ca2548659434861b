#include "CellText.h"

#include "TableData.h"
#include <geomcore/value/CellKey.h>
#include <geomcore/value/LangThreadSettings.h>

#include <algorithm>

namespace VKTab {

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString translated(const TableData &table, int column, const QString &text)
{
    const QString language = LangThreadSettings::language();
    return language.isEmpty() ? text : table.descriptor().translate(text, column, language);
}

} // namespace

std::string_view plainText(std::string_view text, const TableField &field, std::string &scratch)
{
    text = trimmedCell(text);
    const char decimal = field.decimalChar;
    if (decimal == '.' || !field.isNumeric() || text.find(decimal) == std::string_view::npos ||
        !CanonicalNumber::parse(text, decimal))
        return text;
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), decimal, '.');
    scratch = std::move(plain);
    return scratch;
}

Value formattedText(const TableData &table, int column, std::string_view text, FormatFlags format)
{
    if (table.isMissing(text))
        return {};
    const TableField &field = table.descriptor().fields[column];
    std::string scratch;
    const bool plain = format.testFlag(FormatPlain);
    QString result = toQString(plain ? plainText(text, field, scratch) : text);
    if (!format.testFlag(FormatUntranslated) && !field.isNumeric())
        result = translated(table, column, result);
    if (!plain && !field.unit.isEmpty())
        result += u' ' + field.unit;
    return result;
}

Value cellValue(const TableData &table, int row, int column, FormatFlags format)
{
    std::string scratch;
    return formattedText(table, column, table.cell(row, column, scratch), format);
}

} // namespace VKTab
