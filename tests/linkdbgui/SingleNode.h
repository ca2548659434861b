#pragma once

#include <mapping/data/CatalogMappingHandlerI.h>
#include <mapping/data/CatalogStructureNodeI.h>

#include <geomcore/records/CatalogMappingC.h>

#include <boost/shared_ptr.hpp>

/// A node as a host may give one; counts how often its state is dropped.
class SingleNode : public CatalogStructureNodeI
{
public:
    SingleNode(int type, const QString &path, const PrjMappingC &mapping)
        : m_type(type)
        , m_path(path)
        , m_mapping(mapping)
    {
    }
    int getNodeType() const override { return m_type; }
    QString getName() const override { return QStringLiteral("single.prj"); }
    QString getPath() const override { return m_path; }
    PRJMAPPING::MappingState getMappingState() const override { return {}; }
    PrjMappingC getMapping() const override { return m_mapping; }
    bool hasConflicts() const override { return false; }
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override
    {
        return children;
    }
    void invalidateState() override { ++invalidated; }

    QList<boost::shared_ptr<CatalogStructureNodeI>> children;
    int invalidated = 0;

private:
    int m_type;
    QString m_path;
    PrjMappingC m_mapping;
};

/// A handler that overrides nothing that it need not.
class SingleHandler : public CatalogMappingHandlerI
{
public:
    explicit SingleHandler(const boost::shared_ptr<CatalogStructureNodeI> &root)
        : m_root(root)
    {
    }
    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override
    {
        return m_root;
    }
    CatalogMappingC getCatalogMapping() const override { return {}; }
    void updateMapping(const PrjMappingC &mapping) override { updates.append(mapping); }
    bool commitModifications() override { return true; }

    QList<PrjMappingC> updates;

private:
    boost::shared_ptr<CatalogStructureNodeI> m_root;
};
