#include "AssignmentCollector.h"

#include <geomcore/expression/NodeAssign.h>

AssignmentCollector::~AssignmentCollector() = default;

int AssignmentCollector::visitNode(const VKTab::NodeBase &node, int, int)
{
    if (node.getArt() == VKTab::AssignArt)
        m_ids.insert(static_cast<const VKTab::NodeAssign &>(node).getVarId());
    return 1;
}
