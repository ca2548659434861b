#pragma once

#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <string>

namespace VKTab {
class TableData;
}

namespace Mapper {

class PairJoin;

/// The joins of one target table that were used last. Any thread; two that ask for the same join at
/// once wait for one building.
class JoinCache
{
public:
    using Build = std::function<std::shared_ptr<const PairJoin>()>;

    /// \a signature tells apart the joins with one source table. Null, and nothing is kept, if that
    /// is what \a build gives.
    [[nodiscard]] std::shared_ptr<const PairJoin>
    get(const std::shared_ptr<const VKTab::TableData> &source, const std::string &signature,
        const Build &build);

private:
    static constexpr size_t MaxKept = 4;

    struct Entry
    {
        std::weak_ptr<const VKTab::TableData> source;
        std::string signature;
        std::once_flag once;
        std::shared_ptr<const PairJoin> join;
    };
    [[nodiscard]] std::shared_ptr<Entry>
    entryFor(const std::shared_ptr<const VKTab::TableData> &source, const std::string &signature);

    void forget(const std::shared_ptr<Entry> &entry);

    std::mutex m_mutex;
    std::list<std::shared_ptr<Entry>> m_entries; ///< Last used first.
};

} // namespace Mapper
