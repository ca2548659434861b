#pragma once

#include "mzComVariantC.h"
#include "mzIComNativePointer.h"
#include "mzIDispatchC.h"
#include "proxyObjectC.h"

#include <core/text/ProxyPtrT.h>
#include <core/VelkCoreGlobal.h>

#include <QString>

/// An argument of a call, or its result, as C++ has it. Types are int, bool, double, QString,
/// PString, mzComStringC, mzComVariantC, mzIDispatchC (arguments only) and ProxyPtrT.
class VELKCORE_EXPORT proxyAutoTypeCastC
{
public:
    /// An argument.
    explicit proxyAutoTypeCastC(const mzComVariantC &argument)
        : m_argument(argument)
    {
    }
    /// A result, which is not owned.
    explicit proxyAutoTypeCastC(mzComVariantC *result)
        : m_result(result)
    {
    }

    /// The argument without its wrappers. Throws the script error if it is of another type. An
    /// empty one is of another type than all but mzComVariantC, too, if the argument is
    /// \a required; otherwise it gives a value as if newly made.
    template<class T>
    [[nodiscard]] T get(bool required = true) const
    {
        T result{};
        if (required || !m_argument.skipVariableAndProps().isEmpty())
            read(result);
        return result;
    }
    /// Writes the result. Into an argument it writes if that is a variable, and does nothing
    /// otherwise.
    template<class T>
    void set(const T &value)
    {
        write(mzComVariantC(value));
    }
    /// Null makes an empty result.
    template<class T>
    void set(const ProxyPtrT<T> &object)
    {
        write(mzComVariantC(static_cast<const proxyObjectC *>(object.get())));
    }

private:
    void read(int &result) const;
    void read(bool &result) const;
    void read(double &result) const;
    void read(QString &result) const;
    void read(PString &result) const;
    void read(mzComStringC &result) const;
    void read(mzComVariantC &result) const;
    void read(mzIDispatchC &result) const;
    template<class T>
    void read(ProxyPtrT<T> &result) const
    {
        const mzComPtrC native = nativeInterface(); // keeps the object meanwhile
        auto *const pointer = native.as<mzIComNativePointer>();
        const QByteArray name = mzComTypeInfoToName(typeid(T));
        auto *object =
            static_cast<T *>(pointer->getNativePointer(name.constData(), mzComGetModuleHint()));
        if (!object)
            object = dynamic_cast<T *>(pointer->getObject());
        if (!object)
            proxyObjectC::throwAutoTypeCastException();
        result = object;
    }
    /// The interface "mzIComNativePointer" of the argument; throws the script error if it has none.
    [[nodiscard]] mzComPtrC nativeInterface() const;
    void write(const mzComVariantC &value);

    mzComVariantC m_argument;
    mzComVariantC *m_result = nullptr;
};
