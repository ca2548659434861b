#include "VarCollector.h"

#include "Nodes.h"

VarCollector::~VarCollector() = default;

int VarCollector::visitNode(const VKTab::NodeBase &node, int, int)
{
    if (node.getArt() != VKTab::VariableArt)
        return 1;
    const QString &name = static_cast<const VKTab::NodeVariable &>(node).name();
    const qsizetype before = m_known.size();
    m_known.insert(name);
    if (m_known.size() > before)
        m_names.append(name);
    return 1;
}
