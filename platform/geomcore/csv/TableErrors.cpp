#include "TableErrors.h"

#include <core/text/countText.h>

namespace VKTab {

void TableErrors::add(const TableError &error)
{
    if (isFull())
        ++m_more;
    else
        m_kept.append(error);
}

TableErrorList TableErrors::list() const
{
    TableErrorList all = m_kept;
    if (m_more > 0)
        all.append({m_kept.last().file, 0, 0,
                    translateCount("%Ln weitere(r) Fehler", "VelkGeomCore", int(m_more))});
    return all;
}

} // namespace VKTab
