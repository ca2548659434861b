#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

namespace VKTab {

class NodeBase;

/// Walks the tree of a parsed statement; see NodeBase::accept.
class VELKGEOMCORE_EXPORT NodeVisitor
{
public:
    virtual ~NodeVisitor();

    /// Called for each node, a parent before its children and those from left to right. depth is 0
    /// for the root, index the place among the node's siblings. Returns 1 to go on; any other
    /// result ends the walk.
    virtual int visitNode(const NodeBase &node, int depth, int index) = 0;
};

} // namespace VKTab
