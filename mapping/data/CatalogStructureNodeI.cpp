#include "CatalogStructureNodeI.h"

CatalogStructureNodeI::CatalogStructureNodeI() = default;

CatalogStructureNodeI::CatalogStructureNodeI(const CatalogStructureNodeI &) = default;

CatalogStructureNodeI &CatalogStructureNodeI::operator=(const CatalogStructureNodeI &) = default;

CatalogStructureNodeI::~CatalogStructureNodeI() = default;
