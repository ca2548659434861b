#pragma once

#include "CatalogStructureNodeI.h"
#include "WatchedRelease.h"

#include <core/text/PPrivateData.h>

#include <QString>

#include <boost/shared_ptr.hpp>

class ReleaseMappingHandler;

/// State of a ReleaseMappingHandler.
class ReleaseMappingHandlerPrivate : public PPrivateData<ReleaseMappingHandler>
{
public:
    ReleaseMappingHandlerPrivate(ReleaseMappingHandler *owner, const ReleaseMappingC &given,
                                 const QString &name, const QString &file);

    /// Moves the counters by the kept counts of the mapping's targets, times \a factor. The numbers
    /// overlap on purpose: a confirmed or mapped line without target line is also not found.
    void count(const PrjMappingC &mapping, int factor);

    boost::shared_ptr<WatchedRelease> release; ///< the working copy, shared with the tree's nodes
    QString rootName;
    QString mappingFile;
    boost::shared_ptr<CatalogStructureNodeI> rootNode; ///< null until it is asked for
    int lines = 0;
    int notFound = 0;
    int mapped = 0;
    int toCheck = 0;
    int verified = 0;
};
