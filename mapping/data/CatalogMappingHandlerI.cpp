#include "CatalogMappingHandlerI.h"

CatalogMappingHandlerI::CatalogMappingHandlerI() = default;

CatalogMappingHandlerI::CatalogMappingHandlerI(const CatalogMappingHandlerI &) = default;

CatalogMappingHandlerI &CatalogMappingHandlerI::operator=(const CatalogMappingHandlerI &) = default;

CatalogMappingHandlerI::~CatalogMappingHandlerI() = default;

int CatalogMappingHandlerI::countLines() const
{
    return 0;
}

int CatalogMappingHandlerI::countNotFound() const
{
    return 0;
}

int CatalogMappingHandlerI::countMapped() const
{
    return 0;
}

int CatalogMappingHandlerI::countToCheck() const
{
    return 0;
}

int CatalogMappingHandlerI::countVerified() const
{
    return 0;
}
