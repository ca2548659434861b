#include "toTabVarValues.h"

QList<TabVarValue> toTabVarValues(const QHash<QString, MapVarValueC> &varset)
{
    QList<TabVarValue> values;
    values.reserve(varset.size());
    for (const MapVarValueC &value : varset)
        values.append(value.toTabVarValue());
    return values;
}
