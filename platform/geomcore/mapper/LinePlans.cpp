#include "LinePlans.h"

#include <algorithm>

namespace Mapper {

namespace {

void append(std::string &text, int number)
{
    text += std::to_string(number) + ';';
}

/// Everything that a plan depends on beside the tables.
std::string signatureOf(TargetSet &targets, const PrjMappingC &mapping, const AgreedValues &agreed,
                        const LearnedValues &learned)
{
    std::string text = agreed.signature() + '\x1c' + learned.signature() + '\x1c';
    for (int i = 0; i < targets.count(); ++i) {
        const BoundTarget *target = targets.at(i, mapping);
        const PrjMappingTargetC &entries = mapping.targetAt(i);
        text += target ? target->signature() : std::string();
        text += '\x1c';
        if (!target || entries.lineCounts().verified() == 0)
            continue;
        for (const LineTable::Iterator &entry : entries.lines()) {
            if (entry.state() != PRJMAPPING::Verified)
                continue;
            append(text, entry.sourceLine());
            append(text, entry.targetLine());
        }
    }
    return text;
}

} // namespace

LinePlans &LinePlans::instance()
{
    static LinePlans plans;
    return plans;
}

std::shared_ptr<const LinePlan> LinePlans::get(TargetSet &targets, const PrjMappingC &mapping,
                                               const AgreedValues &agreed,
                                               const LearnedValues &learned)
{
    const auto make = [&]() -> std::shared_ptr<const LinePlan> {
        auto plan = std::make_shared<const LinePlan>(targets, mapping, agreed, learned);
        return plan->isCanceled() ? nullptr : plan;
    };
    const SourceTable &source = targets.source();
    if (!source.content().isPlain()) // what was changed in it is not in the signature
        return make();
    Tables tables;
    for (int i = 0; i < targets.count(); ++i) {
        const BoundTarget *target = targets.at(i, mapping);
        tables.push_back(target ? target->table() : nullptr);
    }
    const std::shared_ptr<Entry> entry =
        entryFor(source.data(), tables, signatureOf(targets, mapping, agreed, learned));
    std::call_once(entry->once, [&] { entry->plan = make(); });
    if (!entry->plan)
        forget(entry);
    return entry->plan;
}

void LinePlans::forget(const std::shared_ptr<Entry> &entry)
{
    const std::lock_guard lock(m_mutex);
    m_entries.remove(entry);
}

std::shared_ptr<LinePlans::Entry>
LinePlans::entryFor(const std::shared_ptr<const VKTab::TableData> &source, const Tables &tables,
                    const std::string &signature)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const auto &entry) {
        return entry->signature == signature && entry->source.lock() == source &&
               std::equal(
                   entry->tables.begin(), entry->tables.end(), tables.begin(), tables.end(),
                   [](const auto &known, const auto &table) { return known.lock() == table; });
    });
    if (found != m_entries.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found);
        return m_entries.front();
    }
    auto entry = std::make_shared<Entry>();
    entry->source = source;
    entry->tables.assign(tables.begin(), tables.end());
    entry->signature = signature;
    m_entries.push_front(entry);
    if (m_entries.size() > MaxKept)
        m_entries.pop_back();
    return entry;
}

} // namespace Mapper
