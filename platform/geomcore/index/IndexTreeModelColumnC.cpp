#include "IndexTreeModelColumnC.h"

IndexTreeModelColumnC::IndexTreeModelColumnC(const PString &name, const PString &title,
                                             const DisplayIndexC &display)
    : m_name(name)
    , m_title(title)
{
    addRole(Qt::DisplayRole, display);
}

IndexTreeModelColumnC::~IndexTreeModelColumnC() = default;

void IndexTreeModelColumnC::addRole(int role, const DisplayIndexC &index)
{
    m_roles.insert(role, index);
}

const DisplayIndexC *IndexTreeModelColumnC::findRole(int role) const
{
    const auto found = m_roles.constFind(role);
    return found == m_roles.constEnd() ? nullptr : &*found;
}
