#include "CatalogSearcherI.h"

CatalogSearcherI::CatalogSearcherI(QObject *parent)
    : QObject(parent)
{
}

CatalogSearcherI::~CatalogSearcherI() = default;
