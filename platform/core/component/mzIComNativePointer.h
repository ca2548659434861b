#pragma once

#include "mzIUnknown.h"

#include <core/VelkCoreGlobal.h>

#include <QByteArray>

#include <typeinfo>

class proxyObjectC;

/// Way from an object of a script back to the C++ object.
class VELKCORE_EXPORT mzIComNativePointer : public mzIUnknown
{
public:
    /// The object as the class of that name, for a caller of that module hint; null if it is of
    /// another class or the hint of another build. Not counted.
    [[nodiscard]] virtual void *getNativePointer(const char *className, const char *moduleHint) = 0;
    /// The object behind the interface. Null if it is no proxy. Not counted.
    [[nodiscard]] virtual proxyObjectC *getObject() = 0;

    [[nodiscard]] static const mzIIDS &iid();

protected:
    ~mzIComNativePointer() = default;
};

/// The class as C++ writes it, with its namespaces.
[[nodiscard]] VELKCORE_EXPORT QByteArray mzComTypeInfoToName(const std::type_info &type);

/// Tells by which compiler and for which revision of the component model the calling module was
/// built. Between equal ones the address of an object can be handed over.
[[nodiscard]] inline const char *mzComGetModuleHint()
{
    return "mz/1 " __VERSION__;
}
