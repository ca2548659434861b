#include "NodeBase.h"

#include "NodeVisitor.h"

#include <algorithm>

namespace VKTab {

NodeBase::NodeBase(int art, int type, qsizetype position)
    : m_art(art)
    , m_type(type)
    , m_position(position)
{
}

NodeBase::~NodeBase() = default;

int NodeBase::accept(NodeVisitor &visitor, int depth, int index) const
{
    int result = visitor.visitNode(*this, depth, index);
    for (size_t i = 0; i < m_children.size() && result == 1; ++i)
        result = m_children[i]->accept(visitor, depth + 1, int(i));
    return result;
}

void NodeBase::addChild(std::unique_ptr<NodeBase> child)
{
    m_depth = std::max(m_depth, child->depth() + 1);
    m_children.push_back(std::move(child));
}

} // namespace VKTab
