#pragma once

#include "mzComPtrC.h"
#include "mzComStringC.h"

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <concepts>
#include <variant>

class mzIComReference;
class proxyObjectC;

/// A value of a script: nothing, a truth value, a number, a text or an object; or a wrapper that
/// stands for a variable or for a property of an object. What reads a value does not look into
/// wrappers: they are stripped first.
class VELKCORE_EXPORT mzComVariantC
{
public:
    enum Type { Empty, Bool, Int, Double, Text, Object, Variable, Property };

    mzComVariantC() = default;
    mzComVariantC(std::same_as<bool> auto value)
        : m_value(value)
    {
    }
    mzComVariantC(int value)
        : m_value(value)
    {
    }
    mzComVariantC(double value)
        : m_value(value)
    {
    }
    mzComVariantC(const QString &text)
        : m_value(mzComStringC(text))
    {
    }
    mzComVariantC(const mzComStringC &text)
        : m_value(text)
    {
    }
    mzComVariantC(const char *utf8)
        : m_value(mzComStringC(utf8))
    {
    }
    /// Null makes an empty variant.
    mzComVariantC(const proxyObjectC *object);
    mzComVariantC(const mzIUnknown *object) { set(object); }

    [[nodiscard]] static mzComVariantC variable(mzIComReference &variable);
    [[nodiscard]] static mzComVariantC property(mzIComReference &property);

    [[nodiscard]] Type type() const;
    [[nodiscard]] bool isEmpty() const { return type() == Empty; }
    /// 0 for all but whole numbers within the range of an int.
    [[nodiscard]] int getInt() const;
    /// These give 0 if the variant holds such a value; otherwise they leave the result alone. A
    /// whole number is an int, however it is held, and each number is a double.
    int getExt(mzComStringC &result) const;
    int getExt(int &result) const;
    int getExt(double &result) const;
    int getExt(bool &result) const;
    /// Of an object, or of a wrapper as such. Null for all others.
    [[nodiscard]] mzIUnknown *getIUnknown() const;

    /// Null makes the variant empty.
    void set(const mzIUnknown *object);

    /// The value of a variable; anything else as it is. Empty where wrappers go round in a circle.
    [[nodiscard]] mzComVariantC skipVariable() const;
    /// The same for properties, too. Throws mzComExceptionC if a property cannot be read.
    [[nodiscard]] mzComVariantC skipVariableAndProps() const;
    /// Of a wrapper; null for all others.
    [[nodiscard]] mzIComReference *reference() const;

    /// Numbers are equal by value, objects and wrappers if they are the same.
    VELKCORE_EXPORT friend bool operator==(const mzComVariantC &a, const mzComVariantC &b);

private:
    struct Wrapper
    {
        Type type;
        mzComPtrC reference;

        friend bool operator==(const Wrapper &a, const Wrapper &b) = default;
    };

    mzComVariantC(Type type, mzIComReference &reference);
    [[nodiscard]] mzComVariantC skip(bool properties) const;

    std::variant<std::monostate, bool, int, double, mzComStringC, mzComPtrC, Wrapper> m_value;
};
