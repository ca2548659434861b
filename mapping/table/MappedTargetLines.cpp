#include "MappedTargetLines.h"

#include "changedSourceLines.h"

bool MappedTargetLines::update(const PrjMappingC &mapping, const QList<int> &targets)
{
    const auto changed =
        m_known && targets == m_targets ? changedSourceLines(m_mapping, mapping) : std::nullopt;
    const PrjMappingC before = std::exchange(m_mapping, mapping);
    m_targets = targets;
    m_known = true;
    if (!changed)
        return countAll();
    std::unordered_map<int, bool> formerly;
    const auto move = [&](const LineTable::Iterator &entry, int difference) {
        if (!entry)
            return;
        formerly.emplace(entry.targetLine(), contains(entry.targetLine()));
        count(entry.targetLine(), difference);
    };
    for (const int index : targets) {
        for (const int line : *changed) {
            if (index < before.countTargets())
                move(before.targetAt(index).lines().find(line), -1);
            move(mapping.targetAt(index).lines().find(line), 1);
        }
    }
    for (const auto &[line, held] : formerly) {
        if (contains(line) != held)
            return true;
    }
    return false;
}

bool MappedTargetLines::countAll()
{
    m_counts.clear();
    for (const int index : std::as_const(m_targets)) {
        for (const LineTable::Iterator &entry : m_mapping.targetAt(index).lines())
            count(entry.targetLine(), 1);
    }
    return true;
}

void MappedTargetLines::count(int targetLine, int difference)
{
    const auto place = m_counts.try_emplace(targetLine, 0).first;
    place->second += difference;
    if (place->second == 0)
        m_counts.erase(place);
}

int MappedTargetLines::times(int targetLine) const
{
    const auto place = m_counts.find(targetLine);
    return place == m_counts.end() ? 0 : place->second;
}
