#include "ReleaseMappingHandler.h"

#include "ReleaseMappingHandlerPrivate.h"
#include "ReleaseMappingStructureNode.h"

#include <core/json/PJsonValue.h>
#include <core/text/PPathName.h>

#include <QFile>

#include <boost/make_shared.hpp>

ReleaseMappingHandler::ReleaseMappingHandler(const ReleaseMappingC &release,
                                             const QString &rootName, const QString &mappingFile)
    : d(new ReleaseMappingHandlerPrivate(this, release, rootName, mappingFile))
{
}

ReleaseMappingHandler::~ReleaseMappingHandler()
{
    delete d;
}

boost::shared_ptr<CatalogStructureNodeI> ReleaseMappingHandler::getRootStructureNode() const
{
    if (!d->rootNode)
        d->rootNode = boost::make_shared<ReleaseMappingStructureNode>(d->rootName, d->release);
    return d->rootNode;
}

CatalogMappingC ReleaseMappingHandler::getCatalogMapping() const
{
    CatalogMappingC catalog;
    catalog.addRelease(d->release->release());
    return catalog;
}

void ReleaseMappingHandler::updateMapping(const PrjMappingC &mapping)
{
    Q_ASSERT_X(mapping.isValid(), "updateMapping", "a mapping without source path");
    if (!mapping.isValid()) // it would spoil the counts and the file
        return;
    const PrjMappingC stored = d->release->release().findMapping(
        mapping.getSourcePath(), mapping.getSourceVersion(), mapping.getTabVersion());
    if (stored.isValid())
        d->count(stored, -1);
    d->release->addMapping(mapping);
    d->count(mapping, 1);
}

bool ReleaseMappingHandler::commitModifications()
{
    const PPathName path(d->mappingFile);
    PJsonValue document;
    if (path.exists(false) && !document.parseFile(path.native()))
        document = PJsonValue();
    PJsonValue value;
    d->release->release().toJson(value, false);
    document[d->release->release().getSourceDate()] = value;

    QFile file(path.native());
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const bool written = document.writeTo(file, false);
    // A full disk may show only when what was taken is handed on.
    return file.flush() && written;
}

int ReleaseMappingHandler::countLines() const
{
    return d->lines;
}

int ReleaseMappingHandler::countNotFound() const
{
    return d->notFound;
}

int ReleaseMappingHandler::countMapped() const
{
    return d->mapped;
}

int ReleaseMappingHandler::countToCheck() const
{
    return d->toCheck;
}

int ReleaseMappingHandler::countVerified() const
{
    return d->verified;
}
