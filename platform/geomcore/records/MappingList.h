#pragma once

#include "PrjMappingC.h"

#include <QExplicitlySharedDataPointer>
#include <QHash>
#include <QList>
#include <QSharedData>

#include <array>
#include <vector>

/// The project mappings of a release in stored order, in pages of 256 that copies share, with an
/// index from source path to positions and the number of mappings for each state. A mapping keeps
/// its position for good: nothing is inserted or removed, and replacing keeps path and version.
/// Whoever keeps positions, as the catalog's tree does, relies on that.
class MappingList
{
public:
    [[nodiscard]] int size() const { return m_size; }
    [[nodiscard]] const PrjMappingC &at(int position) const
    {
        return m_pages[std::size_t(position / PageSize)]
            ->mappings[std::size_t(position % PageSize)];
    }
    /// Whether the mapping at a position that both have is one and the same record; false may be
    /// said of equal ones too.
    [[nodiscard]] bool shares(const MappingList &other, int position) const
    {
        const auto page = std::size_t(position / PageSize);
        return m_pages[page] == other.m_pages[page];
    }
    /// The first in stored order, -1 if there is none. An empty table version matches any.
    [[nodiscard]] int find(const QString &path, const QString &version,
                           const QString &tableVersion) const;
    /// All of a path, in stored order.
    [[nodiscard]] QList<int> findAll(const QString &path) const;
    /// For each mapping in stored order the position of what find gives for its path and version.
    [[nodiscard]] QList<int> firstPositions() const;
    void append(const PrjMappingC &mapping);
    /// The new mapping must have the source path and version of the old one.
    void replace(int position, const PrjMappingC &mapping);
    /// The states of RolledUpStates that any mapping has.
    [[nodiscard]] PRJMAPPING::MappingState state() const;

private:
    static constexpr int PageSize = 256;

    struct Page : QSharedData
    {
        std::vector<PrjMappingC> mappings;
    };
    struct Positions
    {
        int first = -1;
        int last = -1;
    };
    struct Index : QSharedData
    {
        QHash<QString, Positions> byPath;
        std::vector<int> next; ///< for each position the next one of the same path, or -1
    };

    void countStates(const PrjMappingC &mapping, int factor);
    void enter(const QString &path);

    int m_size = 0;
    std::vector<QExplicitlySharedDataPointer<Page>> m_pages;
    QExplicitlySharedDataPointer<Index> m_index;
    std::array<int, std::size(PRJMAPPING::RolledUpStates)> m_states{};
};
