#include "mzComVariantArrayC.h"

void mzComVariantArrayC::replace(int index, const mzComVariantC &value)
{
    if (index >= 0 && index < size())
        m_values.replace(index, value);
}

void mzComVariantArrayC::remove(int index)
{
    if (index >= 0 && index < size())
        m_values.removeAt(index);
}

QStringList mzComVariantArrayC::toQStringList() const
{
    QStringList result;
    result.reserve(m_values.size());
    for (const mzComVariantC &value : m_values) {
        mzComStringC text;
        value.getExt(text);
        result.append(text.text());
    }
    return result;
}
