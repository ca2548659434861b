#include "CatalogSearchQuery.h"

#include "IndexTreeKeySearchC.h"
#include "IndexTreeVarSearchC.h"
#include "RemoteSearchRequestDataC.h"

namespace {

void addText(CatalogSearchQuery &query, const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    if (!query.text.isEmpty())
        query.text += u' ';
    query.text += text;
}

void addConditions(CatalogSearchQuery &query, const IndexTreeVarSearchC &search)
{
    for (const PRefPtr<IndexTreeVarSearchConditionC> &condition : search.getConditions()) {
        if (condition->isFullText())
            addText(query, condition->getValLow());
        else if (!condition->toCondition().variable.isEmpty())
            query.conditions.append(condition->toCondition());
    }
}

} // namespace

bool CatalogSearchQuery::isEmpty() const
{
    return conditions.isEmpty() && text.trimmed().isEmpty();
}

CatalogSearchQuery CatalogSearchQuery::fromRequest(const RemoteSearchRequestDataC &request)
{
    CatalogSearchQuery query;
    for (const PRefPtr<IndexTreeBaseSearchC> &search : request.getSearchClasses()) {
        if (!search->isActivated())
            continue;
        if (const auto *words = dynamic_cast<const IndexTreeKeySearchC *>(search.get()))
            addText(query, words->getKeyWord());
        else if (const auto *lines = dynamic_cast<const IndexTreeVarSearchC *>(search.get()))
            addConditions(query, *lines);
    }
    for (const PRefPtr<IndexTreeNodeC> &node : request.getNodeList()) {
        if (node && !node->catalogPath().isEmpty())
            query.below.append(node->catalogPath());
    }
    return query;
}
