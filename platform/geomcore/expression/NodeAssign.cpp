#include "NodeAssign.h"

namespace VKTab {

NodeAssign::NodeAssign(const VarId &id, const QString &name, qsizetype position)
    : NodeBase(AssignArt, AssignmentType, position)
    , m_id(id)
    , m_name(name)
{
}

NodeAssign::~NodeAssign() = default;

} // namespace VKTab
