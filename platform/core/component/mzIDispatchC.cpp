#include "mzIDispatchC.h"

#include "mzComExceptionC.h"
#include "proxyMemberDescListS.h"

mzIDispatchC::mzIDispatchC(mzIUnknown *object)
{
    if (object)
        object->queryInterface(mzIDispatch::iid(), m_object);
}

int mzIDispatchC::invokeAndCheck(const mzComStringC &method, const mzComVariantArrayC &arguments,
                                 mzComVariantC &result,
                                 std::optional<PScriptException> &exception) const
{
    const int code = invoke(method, proxyMemberDescS::Method, arguments, result, exception);
    if (code != mzComSuccess)
        return code;
    try {
        result = result.skipVariableAndProps();
        return mzComSuccess;
    } catch (const mzComExceptionC &error) {
        result = {};
        exception = error.script();
        return error.code();
    }
}

int mzIDispatchC::invoke(const mzComStringC &member, int kind, const mzComVariantArrayC &arguments,
                         mzComVariantC &result, std::optional<PScriptException> &exception) const
{
    result = {};
    exception.reset();
    if (!isValid())
        return mzComNoInterface;
    const mzIDispatchC self = *this; // the call may drop the last other pointer
    const int code = self->invokeByName(member, kind, arguments, result, exception);
    if (code != mzComSuccess)
        result = {};
    else
        exception.reset();
    return code;
}
