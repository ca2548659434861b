#include "VarCollector.h"

#include "Nodes.h"

VarCollector::~VarCollector() = default;

int VarCollector::visitNode(const VKTab::NodeBase &node, int, int)
{
    if (node.getArt() != VKTab::VariableArt)
        return 1;
    const QString &name = static_cast<const VKTab::NodeVariable &>(node).name();
    if (!m_names.contains(name))
        m_names.append(name);
    return 1;
}
