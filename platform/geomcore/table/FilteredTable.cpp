#include "FilteredTable.h"

#include "ModifyLayer.h"

namespace VKTab {

bool FilteredTable::isPlain() const
{
    return m_changes.isPlain();
}

} // namespace VKTab
