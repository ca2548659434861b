#include "SameLines.h"

#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

namespace VelkRelease {

namespace {

bool sayTheSame(const VKTab::TableData &table, int row, int otherRow)
{
    const VKTab::TableDescriptor &head = table.descriptor();
    std::string text;
    std::string otherText;
    for (int column = 0; column < table.columnCount(); ++column) {
        const VKTab::TableField &field = head.fields[column];
        if (field.kind == VKTab::FieldKind::Internal || field.name == head.lineIdField ||
            field.name == head.lineSubIdField)
            continue;
        const std::string_view cell = table.cell(row, column, text);
        const std::string_view other = table.cell(otherRow, column, otherText);
        const auto key = [&](std::string_view from) {
            return VKTab::CellKey(from, VKTab::CompareMode::Number, field.decimalChar,
                                  table.isMissing(from));
        };
        if (!(key(cell) == key(other)))
            return false;
    }
    return true;
}

} // namespace

SameLines::SameLines(const QString &targetRoot)
    : m_root(targetRoot)
{
}

bool SameLines::areSame(const QString &targetPath, int line, int otherLine)
{
    auto found = m_tables.constFind(targetPath);
    if (found == m_tables.cend()) {
        const CatalogReader reader(m_root, targetPath.section(u'/', 0, 0));
        found = m_tables.insert(targetPath, reader.read(targetPath).table);
    }
    const VKTab::TableData *table = found->get();
    const int row = table ? table->rowOf(line) : -1;
    const int otherRow = table ? table->rowOf(otherLine) : -1;
    return row != -1 && otherRow != -1 && sayTheSame(*table, row, otherRow);
}

} // namespace VelkRelease
