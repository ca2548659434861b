#pragma once

#include "LinePlan.h"

#include <functional>
#include <list>
#include <mutex>
#include <string>

namespace Mapper {

/// The plans that were used last, shared by all mappers of the process. Any thread; two that ask
/// for the same plan at once wait for one making.
class LinePlans
{
public:
    [[nodiscard]] static LinePlans &instance();

    /// The plan of the source table over these targets with the lines that are confirmed in
    /// \a mapping. Null if making it was cancelled.
    [[nodiscard]] std::shared_ptr<const LinePlan> get(TargetSet &targets,
                                                      const PrjMappingC &mapping,
                                                      const AgreedValues &agreed,
                                                      const LearnedValues &learned);

private:
    static constexpr size_t MaxKept = 4;

    struct Entry
    {
        std::weak_ptr<const VKTab::TableData> source;
        std::vector<std::weak_ptr<const TargetTable>> tables;
        std::string signature;
        std::once_flag once;
        std::shared_ptr<const LinePlan> plan;
    };
    using Tables = std::vector<std::shared_ptr<const TargetTable>>;
    [[nodiscard]] std::shared_ptr<Entry>
    entryFor(const std::shared_ptr<const VKTab::TableData> &source, const Tables &tables,
             const std::string &signature);
    void forget(const std::shared_ptr<Entry> &entry);

    std::mutex m_mutex;
    std::list<std::shared_ptr<Entry>> m_entries; ///< Last used first.
};

} // namespace Mapper
