#include "mzComVariantArrayC.h"

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
