#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QSet>
#include <QStringList>

/// Knows which projects the ERP knows; given to the index tree by the host. Called on the GUI
/// thread.
class VELKGEOMCORE_EXPORT IndexTreeErpSourceI
{
public:
    virtual ~IndexTreeErpSourceI();

    /// Those of the projects, given by their catalog paths, that bear the ERP mark.
    [[nodiscard]] virtual QSet<QString> markedProjects(const QStringList &catalogPaths) = 0;
};
