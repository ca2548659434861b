#pragma once

#include "mzComVariantArrayC.h"
#include "proxyAutoTypeCastC.h"

#include <core/VelkCoreGlobal.h>

/// Arguments of a call.
class VELKCORE_EXPORT proxyAutoParaListC
{
public:
    explicit proxyAutoParaListC(const mzComVariantArrayC &arguments)
        : m_arguments(arguments)
    {
    }

    /// The argument at an index from 0; an empty one beyond the end.
    [[nodiscard]] proxyAutoTypeCastC operator[](int index)
    {
        m_lastIndex = index;
        return proxyAutoTypeCastC(m_arguments[index]);
    }
    [[nodiscard]] int size() const { return m_arguments.size(); }
    /// The index asked for last, -1 if there was none: where an error lies.
    [[nodiscard]] int lastIndex() const { return m_lastIndex; }

private:
    mzComVariantArrayC m_arguments;
    int m_lastIndex = -1;
};
