#include "MappingList.h"

#include <numeric>

int MappingList::find(const QString &path, const QString &version,
                      const QString &tableVersion) const
{
    if (!m_index)
        return -1;
    const auto positions = m_index->byPath.constFind(path);
    if (positions == m_index->byPath.constEnd())
        return -1;
    for (int i = positions->first; i >= 0; i = m_index->next[std::size_t(i)]) {
        const PrjMappingC &mapping = at(i);
        if (mapping.getSourceVersion() == version &&
            (tableVersion.isEmpty() || mapping.getTabVersion() == tableVersion))
            return i;
    }
    return -1;
}

QList<int> MappingList::findAll(const QString &path) const
{
    QList<int> found;
    const int first = m_index ? m_index->byPath.value(path).first : -1;
    for (int i = first; i >= 0; i = m_index->next[std::size_t(i)])
        found += i;
    return found;
}

QList<int> MappingList::firstPositions() const
{
    QList<int> positions(m_size);
    std::iota(positions.begin(), positions.end(), 0);
    if (!m_index)
        return positions;
    // Only what follows another mapping of its path can have one before it.
    for (const int later : m_index->next) {
        if (later >= 0)
            positions[later] = find(at(later).getSourcePath(), at(later).getSourceVersion(), {});
    }
    return positions;
}

void MappingList::append(const PrjMappingC &mapping)
{
    if (m_size % PageSize == 0)
        m_pages.emplace_back(new Page);
    m_pages.back().detach();
    m_pages.back()->mappings.push_back(mapping);
    ++m_size;
    enter(mapping.getSourcePath());
    countStates(mapping, 1);
}

void MappingList::replace(int position, const PrjMappingC &mapping)
{
    QExplicitlySharedDataPointer<Page> &page = m_pages[std::size_t(position / PageSize)];
    page.detach();
    PrjMappingC &stored = page->mappings[std::size_t(position % PageSize)];
    countStates(stored, -1);
    stored = mapping;
    countStates(stored, 1);
}

PRJMAPPING::MappingState MappingList::state() const
{
    PRJMAPPING::MappingState state;
    for (std::size_t i = 0; i < m_states.size(); ++i)
        state.setFlag(PRJMAPPING::RolledUpStates[i], m_states[i] > 0);
    return state;
}

void MappingList::countStates(const PrjMappingC &mapping, int factor)
{
    const PRJMAPPING::MappingState state = mapping.getMappingState();
    for (std::size_t i = 0; i < m_states.size(); ++i)
        m_states[i] += state.testFlag(PRJMAPPING::RolledUpStates[i]) ? factor : 0;
}

void MappingList::enter(const QString &path)
{
    if (m_index)
        m_index.detach();
    else
        m_index = new Index;
    const int position = m_size - 1;
    m_index->next.push_back(-1);
    Positions &positions = m_index->byPath[path];
    if (positions.last < 0)
        positions.first = position;
    else
        m_index->next[std::size_t(positions.last)] = position;
    positions.last = position;
}
