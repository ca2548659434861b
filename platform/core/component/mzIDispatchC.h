#pragma once

#include "mzComPtrC.h"
#include "mzComVariantArrayC.h"
#include "mzIDispatch.h"

#include <core/VelkCoreGlobal.h>

#include <optional>

/// Counted pointer to an object whose members are called by name. Null is allowed.
class VELKCORE_EXPORT mzIDispatchC
{
public:
    mzIDispatchC() = default;
    /// Stays empty if the object cannot be called by name.
    explicit mzIDispatchC(mzIUnknown *object);

    [[nodiscard]] bool isValid() const { return m_object.isValid(); }
    [[nodiscard]] mzIDispatch *iface() const { return m_object.as<mzIDispatch>(); }
    mzIDispatch *operator->() const { return iface(); }

    /// Calls a method. Gives 0 on success. After a failure the result is empty, and the script's
    /// exception is there if one came back: not so where there is no object.
    int invokeAndCheck(const mzComStringC &method, const mzComVariantArrayC &arguments,
                       mzComVariantC &result, std::optional<PScriptException> &exception) const;
    /// The same for any kind of member; the result keeps its wrappers.
    int invoke(const mzComStringC &member, int kind, const mzComVariantArrayC &arguments,
               mzComVariantC &result, std::optional<PScriptException> &exception) const;

    friend bool operator==(const mzIDispatchC &a, const mzIDispatchC &b)
    {
        return a.m_object == b.m_object;
    }

private:
    mzComPtrC m_object;
};
