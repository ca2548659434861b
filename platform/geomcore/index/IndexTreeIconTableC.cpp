#include "IndexTreeIconTableC.h"

#include "NodeIconEngine.h"

#include <algorithm>

IndexTreeIconTableC::IndexTreeIconTableC()
    : m_items{{"DIRECTORY/", QIcon(new NodeIconEngine(NodeIconEngine::Directory))},
              {"VIEW3D/", QIcon(new NodeIconEngine(NodeIconEngine::Project))},
              {"VIEW3D/ERP/", QIcon(new NodeIconEngine(NodeIconEngine::ErpProject))}}
{
}

const IndexTreeIconTableItemC *IndexTreeIconTableC::findItem(const PString &type) const
{
    const auto item =
        std::find_if(m_items.begin(), m_items.end(), [&type](const IndexTreeIconTableItemC &known) {
            return known.getType() == type;
        });
    return item == m_items.end() ? nullptr : &*item;
}
