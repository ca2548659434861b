#include "OpenTables.h"

#include <geomcore/project/CatalogPlaces.h>

#include <QDateTime>

namespace VKTab {

namespace {

/// With more entries those of tables that nobody holds any more are thrown out.
constexpr qsizetype ManyEntries = 64;

} // namespace

OpenTables &OpenTables::instance()
{
    static OpenTables tables;
    return tables;
}

TableReadResult OpenTables::open(const QString &descriptorFile)
{
    Entry entry;
    {
        const std::lock_guard lock(m_mutex);
        entry = m_entries.value(descriptorFile);
    }
    if (auto data = held(entry, descriptorFile))
        return {std::move(data), {}};
    // Stamped before they are read, as far as it is known which files these are.
    const FileStamps before(entry.stamps.paths());
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    TableReadResult result = TableData::read(descriptorFile);
    if (!result)
        return result;
    const QStringList files{descriptorFile, result.data->fileName()};
    entry.stamps = files == before.paths() ? before : FileStamps(files);
    if (files != before.paths())
        entry.stamps.distrustSince(begin);
    entry.data = result.data;
    note(descriptorFile, entry);
    return result;
}

std::shared_ptr<const TableData> OpenTables::held(const Entry &entry,
                                                  const QString &descriptorFile) const
{
    auto data = entry.data.lock();
    if (!data || FileStamps(entry.stamps.paths()) != entry.stamps)
        return nullptr;
    // What may be read can have changed meanwhile.
    return CatalogPlaces::instance().refusal(data->fileName(), descriptorFile).isEmpty() ? data
                                                                                         : nullptr;
}

void OpenTables::note(const QString &descriptorFile, const Entry &entry)
{
    const std::lock_guard lock(m_mutex);
    if (m_entries.size() >= ManyEntries)
        m_entries.removeIf([](const auto &known) { return known.value().data.expired(); });
    m_entries.insert(descriptorFile, entry);
}

} // namespace VKTab
