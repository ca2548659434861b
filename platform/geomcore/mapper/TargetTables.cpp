#include "TargetTables.h"

#include "TargetTable.h"

#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/tellTableErrors.h>

#include <QDateTime>

#include <algorithm>

namespace Mapper {

using VKTab::FileStamps;

namespace {

QStringList filesOf(const QString &projectPath, const VKTab::ProjectTable &table,
                    const VKTab::Content &content)
{
    QStringList files{projectPath};
    if (!table.file.isEmpty())
        files.append(table.file);
    if (const auto data = content.getTableData())
        files.append(data->fileName());
    return files;
}

} // namespace

TargetTables &TargetTables::instance()
{
    static TargetTables tables;
    return tables;
}

std::shared_ptr<const TargetTable> TargetTables::open(const QString &nativeProjectPath,
                                                      VKTab::TableErrorList *errors)
{
    const std::shared_ptr<Entry> entry = entryFor(nativeProjectPath);
    std::shared_ptr<const TargetTable> table;
    {
        const std::lock_guard lock(entry->mutex);
        table = entry->table.lock();
        const QString refusal = CatalogPlaces::instance().refusalOfTarget(nativeProjectPath);
        if (!table || !refusal.isEmpty() || FileStamps(entry->stamps.paths()) != entry->stamps)
            table = read(*entry, refusal, errors);
    }
    keep(entry, table);
    return table;
}

std::shared_ptr<const TargetTable> TargetTables::read(Entry &entry, const QString &refusal,
                                                      VKTab::TableErrorList *errors)
{
    const bool told = entry.failed && FileStamps(entry.stamps.paths()) == entry.stamps;
    // Stamped before they are read, as far as it is known which files these are.
    const FileStamps before(entry.stamps.paths());
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    VKTab::Content content;
    VKTab::ProjectTable project;
    if (refusal.isEmpty())
        project = VKTab::readProjectTable(entry.path, content, {.tells = !told});
    else
        project.errors = {{entry.path, 0, 0, refusal}};
    if (!refusal.isEmpty() && !told)
        VKTab::tellTableErrors(entry.path, project.errors);
    if (errors && !project)
        *errors = project.errors;
    entry.failed = !project;
    const QStringList files = filesOf(entry.path, project, content);
    entry.stamps = files == before.paths() ? before : FileStamps(files);
    if (files != before.paths())
        entry.stamps.distrustSince(begin);
    auto table = project ? std::make_shared<const TargetTable>(content) : nullptr;
    entry.table = table;
    return table;
}

std::shared_ptr<TargetTables::Entry> TargetTables::entryFor(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const auto &entry) { return entry->path == path; });
    if (found != m_entries.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found);
        return m_entries.front();
    }
    auto entry = std::make_shared<Entry>();
    entry->path = path;
    m_entries.push_front(entry);
    if (m_entries.size() > MaxKnown)
        m_entries.pop_back();
    return entry;
}

void TargetTables::keep(const std::shared_ptr<Entry> &entry,
                        const std::shared_ptr<const TargetTable> &table)
{
    const std::lock_guard lock(m_mutex);
    entry->kept = table;
    size_t kept = 0;
    for (const std::shared_ptr<Entry> &other : m_entries) {
        if (other->kept && ++kept > MaxKept)
            other->kept.reset();
    }
}

} // namespace Mapper
