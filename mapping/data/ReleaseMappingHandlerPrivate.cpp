#include "ReleaseMappingHandlerPrivate.h"

#include <boost/make_shared.hpp>

ReleaseMappingHandlerPrivate::ReleaseMappingHandlerPrivate(ReleaseMappingHandler *owner,
                                                           const ReleaseMappingC &given,
                                                           const QString &name, const QString &file)
    : PPrivateData(owner)
    , release(boost::make_shared<WatchedRelease>(given))
    , rootName(name)
    , mappingFile(file)
{
    for (int i = 0; i < given.countMappings(); ++i)
        count(given.mappingAt(i), 1);
}

void ReleaseMappingHandlerPrivate::count(const PrjMappingC &mapping, int factor)
{
    const LineCounts counts = mapping.lineCounts();
    lines += factor * counts.lines();
    notFound += factor * counts.notFound();
    mapped += factor * counts.mapped();
    toCheck += factor * counts.toCheck();
    verified += factor * counts.verified();
}
