#include "IndexTreeBaseSearchC.h"

IndexTreeBaseSearchC::IndexTreeBaseSearchC(const PRefPtr<IndexTreeC> &tree)
    : m_tree(tree)
{
}

IndexTreeBaseSearchC::~IndexTreeBaseSearchC() = default;
