#pragma once

#include "IndexTreeIconTableItemC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <vector>

/// The icons of the index tree's nodes: "DIRECTORY/" for directories, "VIEW3D/" for projects and
/// "VIEW3D/ERP/" for projects that the ERP knows.
/// Making one needs no application, drawing its icons does; GUI thread only.
class VELKGEOMCORE_EXPORT IndexTreeIconTableC
{
public:
    IndexTreeIconTableC();

    /// Null if the table does not know the kind. Lives as long as the table.
    [[nodiscard]] const IndexTreeIconTableItemC *findItem(const PString &type) const;

private:
    std::vector<IndexTreeIconTableItemC> m_items;
};
