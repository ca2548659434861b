#include "IndexTreeKeySearchC.h"

IndexTreeKeySearchC::IndexTreeKeySearchC(const PRefPtr<IndexTreeC> &tree)
    : IndexTreeBaseSearchC(tree)
{
}

IndexTreeKeySearchC::~IndexTreeKeySearchC() = default;

QString IndexTreeKeySearchC::searchName()
{
    return QStringLiteral("KeySearch");
}

QString IndexTreeKeySearchC::getName() const
{
    return searchName();
}

PRefPtr<IndexTreeBaseSearchC> IndexTreeKeySearchC::clone() const
{
    return new IndexTreeKeySearchC(*this);
}
