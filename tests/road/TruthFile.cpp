#include "TruthFile.h"

#include <geomcore/table/TableData.h>

namespace {

class TruthTable
{
public:
    TruthTable(const VKTab::TableData &table, TruthFile::Paths paths)
        : m_table(table)
        , m_paths(paths)
    {
    }

    [[nodiscard]] TruthFile::Place place(int row, int tableColumn) const
    {
        QString path = m_table.text(row, tableColumn);
        if (m_paths == TruthFile::Paths::WithCatalog)
            path.remove(0, path.indexOf('/') + 1);
        return {path.left(path.lastIndexOf('.')), m_table.text(row, tableColumn + 1).toInt()};
    }
    [[nodiscard]] QString how(int row) const { return m_table.text(row, 4); }

private:
    const VKTab::TableData &m_table;
    TruthFile::Paths m_paths;
};

void addPlaces(TruthFile::Entry &entry, const TruthFile::Place &went, const QString &how)
{
    if (went.first.isEmpty())
        return;
    entry.places << went;
    if (!how.startsWith("several: "))
        return;
    for (const QString &line : how.mid(9).split(';'))
        entry.places << TruthFile::Place(went.first, line.toInt());
}

} // namespace

bool TruthFile::read(const QString &path, Paths paths)
{
    const auto result = VKTab::TableData::read(VKTab::TableDescriptor(), path);
    if (!result || result.data->columnCount() < 5)
        return false;
    const TruthTable table(*result.data, paths);
    for (int row = 0; row < result.data->rowCount(); ++row) {
        Entry &entry = m_entries[table.place(row, 0)];
        addPlaces(entry, table.place(row, 2), table.how(row));
        entry.unknown = entry.unknown || table.how(row) == "unknown";
    }
    return true;
}
