#include "proxyObjectC.h"

#include "mzComExceptionC.h"
#include "mzComPtrC.h"
#include "mzComVariantArrayC.h"
#include "NativePointer.h"
#include "proxyAutoParaListC.h"
#include "proxyAutoTypeCastC.h"
#include "proxyMemberCall.h"

#include <QThread>

namespace {

quintptr currentThread()
{
    return reinterpret_cast<quintptr>(QThread::currentThreadId());
}

} // namespace

proxyObjectC::proxyObjectC()
    : m_thread(currentThread())
{
}

proxyObjectC::~proxyObjectC() = default;

int proxyObjectC::queryInterface(const mzIIDS &id, mzComPtrC &result)
{
    if (id == mzIUnknown::iid() || id == mzIDispatch::iid())
        result = mzComPtrC(this);
    else if (id == mzIComNativePointer::iid())
        result = mzComPtrC(new NativePointer(*this));
    else
        result = {};
    return result.isValid() ? mzComSuccess : mzComNoInterface;
}

int proxyObjectC::addRef() const
{
    return countUp();
}

int proxyObjectC::release() const
{
    const int count = countDown();
    if (count == 0)
        delete this;
    return count;
}

int proxyObjectC::invokeByName(const mzComStringC &name, int kind,
                               const mzComVariantArrayC &arguments, mzComVariantC &result,
                               std::optional<PScriptException> &exception)
{
    const mzComPtrC self(this); // the call may drop the last other reference
    const proxyMemberCall call{*this, name, kind};
    result = {};
    exception.reset();
    try {
        result = call(arguments);
        return mzComSuccess;
    } catch (const mzComExceptionC &error) {
        exception = error.script();
        return error.code();
    }
}

quintptr proxyObjectC::getStickyThreadId() const
{
    return m_thread;
}

proxyObjectC *proxyObjectC::proxyCast(const proxyMemberDescListS *type)
{
    for (const auto *each = getProxyTypeInfo(); each; each = each->base) {
        if (each == type)
            return this;
    }
    return nullptr;
}

const proxyMemberDescListS *proxyObjectC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

int proxyObjectC::addRemoteConnection()
{
    addRef();
    return ++m_remoteConnections;
}

int proxyObjectC::releaseRemoteConnection()
{
    if (m_remoteConnections == 0)
        return 0;
    const int left = --m_remoteConnections;
    release();
    return left;
}

mzIUnknown *proxyObjectC::getIUnknown() const
{
    return const_cast<proxyObjectC *>(this);
}

void proxyObjectC::throwAutoTypeCastException()
{
    throw mzComExceptionC(mzComTypeCast, {QStringLiteral("wrong type"), {}, 0});
}

const proxyMemberDescListS *proxyObjectC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{
        .className = "proxyObjectC", .file = __FILE__, .line = __LINE__};
    return &description;
}
