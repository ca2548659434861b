#pragma once

#include <map>
#include <memory>
#include <mutex>

namespace Mapper {

/// Values made once for each key and shared by all who ask, on any thread. Two that ask for the
/// same key at once wait for one making; different keys are made side by side.
template<class Key, class Value>
class Memo
{
public:
    template<class Make>
    [[nodiscard]] std::shared_ptr<const Value> get(const Key &key, Make make)
    {
        std::shared_ptr<Entry> entry;
        {
            const std::lock_guard lock(m_mutex);
            std::shared_ptr<Entry> &place = m_entries[key];
            if (!place)
                place = std::make_shared<Entry>();
            entry = place;
        }
        std::call_once(entry->once, [&] { entry->value = make(); });
        return entry->value;
    }

private:
    struct Entry
    {
        std::once_flag once;
        std::shared_ptr<const Value> value;
    };

    std::mutex m_mutex;
    std::map<Key, std::shared_ptr<Entry>> m_entries;
};

} // namespace Mapper
