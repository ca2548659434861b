#include "JoinCache.h"

#include "PairJoin.h"

#include <algorithm>

namespace Mapper {

std::shared_ptr<const PairJoin>
JoinCache::get(const std::shared_ptr<const VKTab::TableData> &source, const std::string &signature,
               const Build &build)
{
    for (bool built = false; !built;) {
        const std::shared_ptr<Entry> entry = entryFor(source, signature);
        std::call_once(entry->once, [&] {
            built = true;
            entry->join = build();
        });
        if (entry->join)
            return entry->join;
        forget(entry); // whoever built it gave up
    }
    return nullptr;
}

void JoinCache::forget(const std::shared_ptr<Entry> &entry)
{
    const std::lock_guard lock(m_mutex);
    m_entries.remove(entry);
}

std::shared_ptr<JoinCache::Entry>
JoinCache::entryFor(const std::shared_ptr<const VKTab::TableData> &source,
                    const std::string &signature)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const auto &entry) {
        return entry->signature == signature && entry->source.lock() == source;
    });
    if (found != m_entries.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found);
        return m_entries.front();
    }
    auto entry = std::make_shared<Entry>();
    entry->source = source;
    entry->signature = signature;
    m_entries.push_front(entry);
    if (m_entries.size() > MaxKept)
        m_entries.pop_back();
    return entry;
}

} // namespace Mapper
