#include "IndexTreeDisplayItemC.h"

#include "IndexTreeC.h"
#include "IndexTreeErpSourceI.h"

PRefPtr<IndexTreeDisplayItemI>
IndexTreeDisplayItemC::createFromNode(const PRefPtr<IndexTreeNodeC> &node)
{
    return node ? new IndexTreeDisplayItemC(node) : nullptr;
}

IndexTreeDisplayItemC::IndexTreeDisplayItemC(const PRefPtr<IndexTreeNodeC> &node)
    : m_node(node)
{
    Q_ASSERT(m_node);
}

IndexTreeDisplayItemC::~IndexTreeDisplayItemC() = default;

QVariant IndexTreeDisplayItemC::data(const DisplayIndexC &index) const
{
    switch (index.field()) {
    case DisplayIndexC::FileName:
        return m_node->name();
    case DisplayIndexC::Description:
        return m_node->description();
    case DisplayIndexC::Icon:
        return icon(index.form());
    case DisplayIndexC::Path:
        return index.form() == DisplayIndexC::CatalogRelative ? m_node->catalogPath()
                                                              : m_node->file();
    case DisplayIndexC::Selectable:
        return canSelect() ? QStringLiteral("true") : QStringLiteral("false");
    default:
        return {};
    }
}

QVariant IndexTreeDisplayItemC::icon(int form) const
{
    PString type = m_node->getType();
    if (form == DisplayIndexC::Erp && m_node->isProject() && hasErpMark())
        type = PString("VIEW3D/ERP/");
    const PRefPtr<IndexTreeC> tree = IndexTreeC::instance();
    const IndexTreeIconTableItemC *item = tree->getIconTable().findItem(type);
    return item ? QVariant(item->getIcon()) : QVariant();
}

bool IndexTreeDisplayItemC::hasErpMark() const
{
    if (!m_erpMark) {
        const auto source = IndexTreeC::instance()->erpSource();
        const QString path = m_node->catalogPath();
        m_erpMark = source && source->markedProjects({path}).contains(path);
    }
    return *m_erpMark;
}

bool IndexTreeDisplayItemC::canSelect() const
{
    return m_node->isProject();
}

bool IndexTreeDisplayItemC::canActivate() const
{
    return m_node->isProject();
}

bool IndexTreeDisplayItemC::hasChildren() const
{
    return m_node->hasChildren();
}

QList<PRefPtr<IndexTreeDisplayItemI>> IndexTreeDisplayItemC::children() const
{
    const QList<PRefPtr<IndexTreeNodeC>> nodes = m_node->children();
    QList<PRefPtr<IndexTreeDisplayItemI>> items;
    items.reserve(nodes.size());
    for (const PRefPtr<IndexTreeNodeC> &node : nodes)
        items.append(createFromNode(node));
    return items;
}
