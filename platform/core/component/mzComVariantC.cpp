#include "mzComVariantC.h"

#include "mzIComReference.h"
#include "proxyObjectC.h"

#include <cmath>
#include <limits>

namespace {

/// No script has that many wrappers around a value, unless they go round in a circle.
constexpr int mostWrappers = 64;

bool isInt(double value)
{
    return value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max() &&
           value == std::trunc(value);
}

} // namespace

mzComVariantC::mzComVariantC(const proxyObjectC *object)
{
    if (object)
        set(object->getIUnknown());
}

mzComVariantC::mzComVariantC(Type type, mzIComReference &reference)
    : m_value(Wrapper{type, mzComPtrC(&reference)})
{
}

mzComVariantC mzComVariantC::variable(mzIComReference &variable)
{
    return {Variable, variable};
}

mzComVariantC mzComVariantC::property(mzIComReference &property)
{
    return {Property, property};
}

mzComVariantC::Type mzComVariantC::type() const
{
    if (const auto *wrapper = std::get_if<Wrapper>(&m_value))
        return wrapper->type;
    return Type(m_value.index());
}

int mzComVariantC::getInt() const
{
    int result = 0;
    getExt(result);
    return result;
}

int mzComVariantC::getExt(mzComStringC &result) const
{
    const auto *text = std::get_if<mzComStringC>(&m_value);
    if (!text)
        return mzComTypeCast;
    result = *text;
    return mzComSuccess;
}

int mzComVariantC::getExt(int &result) const
{
    double number = 0;
    if (getExt(number) != mzComSuccess || !isInt(number))
        return mzComTypeCast;
    result = static_cast<int>(number);
    return mzComSuccess;
}

int mzComVariantC::getExt(double &result) const
{
    if (const int *whole = std::get_if<int>(&m_value))
        result = *whole;
    else if (const double *number = std::get_if<double>(&m_value))
        result = *number;
    else
        return mzComTypeCast;
    return mzComSuccess;
}

int mzComVariantC::getExt(bool &result) const
{
    const bool *value = std::get_if<bool>(&m_value);
    if (!value)
        return mzComTypeCast;
    result = *value;
    return mzComSuccess;
}

mzIUnknown *mzComVariantC::getIUnknown() const
{
    if (const auto *object = std::get_if<mzComPtrC>(&m_value))
        return object->iface();
    return reference();
}

void mzComVariantC::set(const mzIUnknown *object)
{
    if (object)
        m_value = mzComPtrC(object);
    else
        m_value = std::monostate();
}

mzComVariantC mzComVariantC::skipVariable() const
{
    return skip(false);
}

mzComVariantC mzComVariantC::skipVariableAndProps() const
{
    return skip(true);
}

mzIComReference *mzComVariantC::reference() const
{
    const auto *wrapper = std::get_if<Wrapper>(&m_value);
    return wrapper ? wrapper->reference.as<mzIComReference>() : nullptr;
}

bool operator==(const mzComVariantC &a, const mzComVariantC &b)
{
    double first = 0;
    double second = 0;
    if (a.getExt(first) == mzComSuccess && b.getExt(second) == mzComSuccess)
        return first == second;
    return a.m_value == b.m_value;
}

mzComVariantC mzComVariantC::skip(bool properties) const
{
    mzComVariantC result = *this;
    for (int i = 0; i < mostWrappers; ++i) {
        const Type type = result.type();
        if (type != Variable && !(properties && type == Property))
            return result;
        result = result.reference()->read();
    }
    return {};
}
