#pragma once

#include <mapping/data/CatalogStructureNodeI.h>
#include <mapping/data/FilledNodeI.h>

#include <QStringList>

#include <boost/make_shared.hpp>

/// A node of a catalog tree that is what a test makes of it, and notes what is asked of it.
class TestNode : public CatalogStructureNodeI
{
public:
    using Ptr = boost::shared_ptr<TestNode>;

    TestNode(int nodeType, const QString &nodeName)
        : type(nodeType)
        , name(nodeName)
    {
        ++alive;
    }
    TestNode(const TestNode &) = delete;
    TestNode &operator=(const TestNode &) = delete;
    ~TestNode() override { --alive; }

    static Ptr root(const QList<Ptr> &children = {}) { return make(0, "root", children); }
    static Ptr directory(const QString &name, const QList<Ptr> &children = {})
    {
        return make(1, name, children);
    }
    static Ptr project(const QString &name, int state = 0)
    {
        Ptr node = make(2, name, {});
        node->state = state;
        return node;
    }

    int getNodeType() const override
    {
        ++typesRead;
        return type;
    }
    QString getName() const override
    {
        ++namesRead;
        return name;
    }
    QString getPath() const override
    {
        ++pathsRead;
        return mapping.getSourcePath();
    }
    QFlags<PRJMAPPING::MappingState_> getMappingState() const override
    {
        return PRJMAPPING::MappingState::fromInt(state);
    }
    PrjMappingC getMapping() const override { return mapping; }
    bool hasConflicts() const override { return conflicts; }
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override
    {
        ++asked;
        return {children.begin(), children.end()};
    }
    void invalidateState() override { invalidated += name; }

    int type;
    QString name;
    int state = 0;
    bool conflicts = false;
    PrjMappingC mapping;
    QList<Ptr> children;
    mutable int asked = 0; ///< how often for its children

    inline static int alive = 0;
    inline static int typesRead = 0;
    inline static int namesRead = 0;
    inline static int pathsRead = 0;
    inline static QStringList invalidated; ///< names, in the order of the calls

private:
    static Ptr make(int type, const QString &name, const QList<Ptr> &children)
    {
        Ptr node = boost::make_shared<TestNode>(type, name);
        node->children = children;
        return node;
    }
};

/// A directory that tells that it has children without being asked for them.
class FilledTestNode : public TestNode, public FilledNodeI
{
public:
    using TestNode::TestNode;

    static Ptr directory(const QString &name, const QList<Ptr> &children)
    {
        Ptr node = boost::make_shared<FilledTestNode>(1, name);
        node->children = children;
        return node;
    }
};
