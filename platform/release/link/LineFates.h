#pragma once

#include <geomcore/records/PrjMappingC.h>

#include <QHash>

namespace VelkRelease {

/// What became of each line of a project by its mapping.
class LineFates
{
public:
    enum Fate : quint8 {
        Unknown, ///< no target has the line
        Open,    ///< nobody has confirmed it, and the program is not sure
        Gone,    ///< confirmed to have no successor
        Assigned,
    };
    struct Entry
    {
        Fate fate = Unknown;
        int target = -1;
        int targetLine = -1;
    };

    explicit LineFates(const PrjMappingC &mapping);

    [[nodiscard]] Entry of(int line) const { return m_entries.value(line); }

private:
    QHash<int, Entry> m_entries;
};

} // namespace VelkRelease
