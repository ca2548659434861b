#pragma once

#include "mzComVariantC.h"

#include <core/VelkCoreGlobal.h>

#include <QList>
#include <QStringList>

#include <initializer_list>

/// Arguments of a call, or a list of a script.
class VELKCORE_EXPORT mzComVariantArrayC
{
public:
    mzComVariantArrayC() = default;
    mzComVariantArrayC(std::initializer_list<mzComVariantC> values)
        : m_values(values)
    {
    }

    void append(const mzComVariantC &value) { m_values.append(value); }
    /// Both do nothing beyond the array's ends.
    void replace(int index, const mzComVariantC &value);
    void remove(int index);
    [[nodiscard]] int size() const { return static_cast<int>(m_values.size()); }
    /// Empty beyond the array's ends.
    [[nodiscard]] mzComVariantC operator[](int index) const { return m_values.value(index); }
    /// As long as the array: what is no text gives an empty one.
    [[nodiscard]] QStringList toQStringList() const;

private:
    QList<mzComVariantC> m_values;
};
