#include "MapVarValueC.h"

#include "Operand.h"

TabVarValue MapVarValueC::toTabVarValue() const
{
    return TabVarValue(m_name, m_value.toString(), QString(), 0, 1);
}

bool operator==(const MapVarValueC &a, const MapVarValueC &b)
{
    const QString textA = a.m_value.toString();
    const QString textB = b.m_value.toString();
    if (textA == textB)
        return true;
    if (!a.m_numeric || !b.m_numeric)
        return false;
    const auto numberA = VKTab::parseDecimal(textA.toStdString());
    const auto numberB = VKTab::parseDecimal(textB.toStdString());
    return numberA && numberB && VKTab::nearlyEqual(*numberA, *numberB);
}
