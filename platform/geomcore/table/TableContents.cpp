#include "TableContents.h"

#include <geomcore/csv/CsvCells.h>

namespace VKTab {

std::string_view TableContents::rawRow(size_t row) const
{
    const quint64 begin = rowBegin(row);
    quint64 end = rowBegin(row + 1) - 1;
    if (end > begin && bytes[end - 1] == '\r')
        --end;
    return {bytes + begin, end - begin};
}

void TableContents::firstCells(size_t row, std::span<std::string_view> cells,
                               std::string &scratch) const
{
    if (hasQuotes(row))
        splitQuoted(rawRow(row), cells, scratch);
    else
        splitPlain(rawRow(row), bytes + size, cells);
}

int TableContents::columnOf(QStringView name) const
{
    const int index = name.isEmpty() ? -1 : fields.indexOf(name);
    return index < columnCount ? index : -1;
}

void TableContents::setDescriptor(const TableDescriptor &table)
{
    descriptor = table;
    fields = FieldIndex(descriptor.fields);
    emptyIsMissing = descriptor.isMissing({});
    maybeMissing = {};
    maybeMissing[size_t(' ')] = maybeMissing[size_t('\t')] = true;
    for (const QString &missing : std::as_const(descriptor.missingValues)) {
        if (!missing.isEmpty())
            maybeMissing[uchar(missing.toUtf8().front())] = true;
    }
}

} // namespace VKTab
