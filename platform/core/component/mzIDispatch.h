#pragma once

#include "mzIUnknown.h"

#include <core/message/PScriptException.h>
#include <core/VelkCoreGlobal.h>

#include <optional>

class mzComStringC;
class mzComVariantArrayC;
class mzComVariantC;

/// Object whose members are called by their names.
class VELKCORE_EXPORT mzIDispatch : public mzIUnknown
{
public:
    /// \a kind is a proxyMemberDescS::Kind. Gives 0 on success. A failure may come with the error
    /// for the script and leaves the result empty. Throws nothing of the component model.
    virtual int invokeByName(const mzComStringC &name, int kind,
                             const mzComVariantArrayC &arguments, mzComVariantC &result,
                             std::optional<PScriptException> &exception) = 0;
    /// The thread on which alone the object may be called, as QThread names it; 0 for all.
    [[nodiscard]] virtual quintptr getStickyThreadId() const = 0;

    [[nodiscard]] static const mzIIDS &iid();

protected:
    ~mzIDispatch();
};
