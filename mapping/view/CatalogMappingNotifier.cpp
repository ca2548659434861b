#include "CatalogMappingNotifier.h"

CatalogMappingNotifier::CatalogMappingNotifier(QObject *parent)
    : QObject(parent)
{
    setObjectName(QStringLiteral("CatalogMappingNotifier"));
}
